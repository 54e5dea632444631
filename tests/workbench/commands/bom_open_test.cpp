#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

/// What `bom --open` asks of the system's shell.
namespace test_support {
namespace {

namespace fs = std::filesystem;

/// The program with an "xdg-open" of the test's own, before the system's.
class BomOpen : public Workbench {
protected:
    void openerIs(const std::string& script) {
        const fs::path place = folder.path() / "bin";
        fs::create_directory(place);
        writeFile(place / "xdg-open", "#!/bin/sh\n" + script + "\n");
        fs::permissions(place / "xdg-open", fs::perms::owner_all);
        const std::string before = host::environment::variable("PATH").value_or("");
        variables.set("PATH", place.string() + ":" + before);
    }

    /// Where the workbook and what it reads stay after the run.
    [[nodiscard]] fs::path stays() const { return addinCopy().parent_path() / "opened" / "Tarnix"; }

    [[nodiscard]] fs::path openedList() const { return folder.path() / "opened"; }

    [[nodiscard]] std::string recording() const { return "echo \"$1\" > " + openedList().string(); }
};

TEST_F(BomOpen, OpensTheWorkbook) {
    openerIs(recording());

    const ProgramResult result = run({"bom", design(kSmallDesign), "--open"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(openedList()), host::toUtf8(stays() / "TarnixBOM.xlsm") + "\n");
    EXPECT_TRUE(
        result.output.ends_with("\nOpened: " + host::toUtf8(stays() / "TarnixBOM.xlsm") + "\n"))
        << result.output;
}

TEST_F(BomOpen, IsNeededToOpenTheWorkbook) {
    openerIs(recording());

    run({"bom", design(kSmallDesign)});

    EXPECT_FALSE(fs::exists(openedList()));
}

TEST_F(BomOpen, SaysThatTheSystemHasNothingToOpenFilesWith) {
    variables.set("PATH", folder.path());

    const ProgramResult result = run({"bom", design(kSmallDesign), "--open"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(result.output.ends_with("TarnixBOM.xlsm (this system has no xdg-open)\n"))
        << result.output;
}

TEST_F(BomOpen, ExportsAlsoWhereTheShellFails) {
    openerIs("exit 3");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--open", "--out", out()});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(readFile(folder.path() / "out" / "sample-TarnixBOM.csv"),
              readFile(stays() / "TarnixBOM.csv"));
}

TEST_F(BomOpen, DoesNotTakeAnOldExportForANewOne) {
    openerIs("exit 0");
    run({"bom", design(kSmallDesign), "--open"});
    EXPECT_TRUE(fs::exists(stays() / "TarnixBOM.csv"));

    const ProgramResult result = run({"bom", design(""), "--out", out(), "--open"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_FALSE(fs::exists(stays() / "TarnixBOM.csv"));
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
}

}  // namespace
}  // namespace test_support
