#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

/// What `compare` leaves behind when it fails.
namespace {

using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

class CompareFailures : public test_support::Workbench {
protected:
    void SetUp() override {
        Workbench::SetUp();
        old_ = design("Bolt", "old");
        new_ = design("Bolt\nBolt", "new");
    }

    std::string old_;
    std::string new_;
};

TEST_F(CompareFailures, AMissingFolderOfTheOutputIsMade) {
    const ProgramResult result = run({"compare", old_, old_, "--output", path("a/b/changes.txt")});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(folder.read("a/b/changes.txt"), "No differences, 1 line\n");
}

TEST_F(CompareFailures, AFileInThePlaceOfTheFolderIsReported) {
    writeFile(folder.path() / "file", "old");

    const ProgramResult result = run({"compare", old_, new_, "--output", path("file/list.txt")});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: cannot write ", 0), 0U) << result.errors;
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(folder.read("file"), "old");
}

TEST_F(CompareFailures, AnOutputThatIsOneOfTheDesignsIsRefused) {
    const std::string before = readFile(old_);

    expectFailure(run({"compare", old_, new_, "--output", old_}), 2,
                  "tarnix-workbench: --output " + old_ +
                      ": is also OLD; the output needs a file of its own\n");
    expectFailure(run({"compare", new_, old_, "--output", old_}), 2,
                  "tarnix-workbench: --output " + old_ +
                      ": is also NEW; the output needs a file of its own\n");
    EXPECT_EQ(readFile(old_), before);
}

TEST_F(CompareFailures, AnOutputThatIsAFolderIsRefused) {
    std::filesystem::create_directory(folder.path() / "changes");

    expectFailure(
        run({"compare", old_, new_, "--output", path("changes")}), 2,
        "tarnix-workbench: --output " + path("changes") + ": it exists and is not a file\n");
}

TEST_F(CompareFailures, AnUnknownColumnKeepsTheResultThatWasThere) {
    writeFile(folder.path() / "changes.txt", "old");

    expectFailure(run({"compare", old_, new_, "--columns", "Mas", "--output", path("changes.txt")}),
                  2,
                  "tarnix-workbench: \"Mas\": no such column, and no component has a custom "
                  "property of that name; did you mean \"Mass\"?\n");
    EXPECT_EQ(folder.read("changes.txt"), "old");
}

TEST_F(CompareFailures, AnEndingThatNoComparisonHasKeepsTheResultThatWasThere) {
    writeFile(folder.path() / "changes.csv", "old");

    expectFailure(run({"compare", old_, new_, "--output", path("changes.csv")}), 2,
                  "tarnix-workbench: --output " + path("changes.csv") +
                      ": no format of a comparison has the ending .csv; name one with --format, "
                      "or end with .txt, .md or .json\n");
    EXPECT_EQ(folder.read("changes.csv"), "old");
}

TEST_F(CompareFailures, AMissingStepFileIsMissingOnEitherSystem) {
    expectFailure(run({"compare", old_, path("none.step")}), 1,
                  "tarnix-workbench: " + path("none.step") + ": no such file\n");
}

TEST_F(CompareFailures, AMissingDesignKeepsTheResultThatWasThere) {
    writeFile(folder.path() / "changes.txt", "old");

    expectFailure(run({"compare", old_, path("none.design.json"), "--output", path("changes.txt")}),
                  1, "tarnix-workbench: " + path("none.design.json") + ": no such file\n");
    EXPECT_EQ(folder.read("changes.txt"), "old");
}

}  // namespace
