#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

/// What `parts` leaves behind when it fails.
namespace {

using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

class PartsFailures : public test_support::Workbench {
protected:
    /// A profile that writes two lists, the second of them with these columns.
    std::string profileWithSecondColumns(const std::string& columns) {
        writeFile(folder.path() / "two.toml", "columns = \"Part Number\"\n\n[[output]]\nfile = '" +
                                                  path("one.csv") + "'\n\n[[output]]\nfile = '" +
                                                  path("two.csv") + "'\ncolumns = \"" + columns +
                                                  "\"\n");
        return path("two.toml");
    }
};

TEST_F(PartsFailures, AMissingFolderOfTheOutputIsMade) {
    const ProgramResult result = run(
        {"parts", design("Bolt"), "--columns", "Part Number", "--output", path("a/b/list.csv")});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(folder.read("a/b/list.csv"), "Part Number\r\nBolt\r\n");
}

TEST_F(PartsFailures, AFileInThePlaceOfTheFolderIsReported) {
    writeFile(folder.path() / "file", "old");
    const std::string output = path("file/list.csv");

    const ProgramResult result =
        run({"parts", design("Bolt"), "--output", path("out/first.csv"), "--output", output});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: cannot write " + output + ": ", 0), 0U)
        << result.errors;
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_FALSE(folder.has("out"));
    EXPECT_EQ(folder.read("file"), "old");
}

TEST_F(PartsFailures, AnOutputThatIsTheDesignIsRefused) {
    const std::string file = design("Bolt");
    const std::string before = readFile(file);

    expectFailure(run({"parts", file, "--format", "json", "--output", file}), 2,
                  "tarnix-workbench: " + file +
                      ": is one of the designs; the output needs a file of its own\n");
    EXPECT_EQ(readFile(file), before);
}

TEST_F(PartsFailures, AnOutputThatIsAFolderIsRefused) {
    std::filesystem::create_directory(folder.path() / "lists.csv");

    expectFailure(
        run({"parts", design("Bolt"), "--output", path("lists.csv")}), 2,
        "tarnix-workbench: --output " + path("lists.csv") + ": it exists and is not a file\n");
}

TEST_F(PartsFailures, ABadColumnOfOneListKeepsAllFromBeingWritten) {
    const std::string profile = profileWithSecondColumns("Part Number,Mas");

    expectFailure(run({"parts", design("Bolt"), "--profile", profile}), 2,
                  "tarnix-workbench: \"Mas\": no such column, and no component has a custom "
                  "property of that name; did you mean \"Mass\"?\n");
    EXPECT_FALSE(folder.has("one.csv"));
    EXPECT_FALSE(folder.has("two.csv"));
}

TEST_F(PartsFailures, AnUnknownColumnIsRefusedWithWhatWouldBeRight) {
    const std::string file = design("Bolt  property=Colour/red");
    const auto expect = [&](const std::string& option, const std::string& name,
                            const std::string& advice) {
        expectFailure(run({"parts", file, option, name}), 2,
                      "tarnix-workbench: \"" + name +
                          "\": no such column, and no component has a custom property of that "
                          "name; " +
                          advice + "\n");
    };

    expect("--columns", "Colur", "did you mean \"Colour\"?");
    expect("--columns", "Part Number;Mass", "columns have commas between them");
    expect("--sort", "Mass:downwards", "one to sort by ends in :asc, :desc or neither");
    expect("--columns", "Zebra", "property:NAME shows one that a design need not have");
}

TEST_F(PartsFailures, AProfileThatIsMissingIsRefused) {
    expectFailure(
        run({"parts", design("Bolt"), "--profile", path("none.toml"), "--output",
             path("out/list.csv")}),
        1, "tarnix-workbench: " + path("none.toml") + ": no such profile, or it cannot be read\n");
}

}  // namespace
