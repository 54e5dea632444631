#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

#include <cstdlib>

/// What the program does with the terminal and with the system's shell.
namespace {

namespace fs = std::filesystem;
using test_support::kSmallDesign;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

using Terminal = test_support::WorkbenchWithReader;

TEST_F(Terminal, ShowsHowFarReadingIsAndThenNoLineOfIt) {
    readerIs(R"sh(
        echo '{"progress": {"stage": "Building", "fraction": 0.5}}'
        echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [{"id": "",
            "name": "Bar", "description": "", "shape": -1, "uses": []}]}}' | tr -d '\n'
        echo)sh");
    const std::string file = anyStep();
    const fs::path program = host::environment::programFolder() / "tarnix-workbench";
    const fs::path screen = folder.path() / "screen";

    const int status = test_support::runRedirected(
        "/usr/bin/script",
        {"--quiet", "--return", "--command", program.string() + " info " + file, screen.string()},
        folder.path() / "output", folder.path() / "errors");

    EXPECT_EQ(status, 0);
    const std::string shown = readFile(screen);
    const std::string erase = "\r\x1B[K";
    EXPECT_NE(shown.find(erase + "Building " + file + " 50 %" + erase + "a\r\n"), std::string::npos)
        << shown;
}

/// A person's own "xdg-open", before the system's.
class Shell : public test_support::Workbench {
protected:
    void TearDown() override {
        host::environment::setVariable("PATH", before_);
        Workbench::TearDown();
    }

    void openerIs(const std::string& script) const {
        const fs::path place = folder.path() / "bin";
        fs::create_directory(place);
        writeFile(place / "xdg-open", "#!/bin/sh\n" + script + "\n");
        fs::permissions(place / "xdg-open", fs::perms::owner_all);
        host::environment::setVariable("PATH", place.string() + ":" + before_.value_or(""));
    }

    [[nodiscard]] fs::path openedList() const { return folder.path() / "opened"; }

    [[nodiscard]] std::string recording() const { return "echo \"$1\" > " + openedList().string(); }

private:
    std::optional<host::environment::Text> before_ = host::environment::variable("PATH");
};

TEST_F(Shell, OpensTheWorkbookWhereItMay) {
    openerIs(recording());

    const ProgramResult result = run({"bom", design(kSmallDesign), "--open"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(readFile(openedList()), host::toUtf8(addinCopy() / "TarnixBOM.xlsm") + "\n");
    EXPECT_NE(result.output.find("\\TarnixBOM.xlsm\n"), std::string::npos) << result.output;
}

TEST_F(Shell, OpensNothingUnlessItMay) {
    openerIs(recording());

    run({"bom", design(kSmallDesign)});

    EXPECT_FALSE(fs::exists(openedList()));
}

TEST_F(Shell, ThatFailsKeepsNothingFromBeingExported) {
    openerIs("exit 3");

    const ProgramResult result = run({"bom", design(kSmallDesign), "--open", "--out", out()});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    EXPECT_EQ(readFile(folder.path() / "out" / "TarnixBOM.csv"),
              readFile(addinCopy() / "TarnixBOM.csv"));
}

}  // namespace
