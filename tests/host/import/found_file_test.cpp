#include "host/import/found_file.h"

#include "host/import/step_import.h"
#include "tests/host/import/drafts.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

namespace fs = std::filesystem;

class FoundFile : public testing::Test {
protected:
    void write(const std::string& name) const { folder.write(name, "x"); }

    /// What is found below the test's folder; the complaint where nothing is.
    [[nodiscard]] std::string found(const std::string& name) const {
        try {
            return host::foundFile((folder.path() / name).string())
                .lexically_relative(folder.path());
        } catch (const host::ImportError& error) {
            return error.what();
        }
    }

    test_support::TemporaryFolder folder;
};

TEST_F(FoundFile, IsTheOneOfTheExactName) {
    write("Part.step");
    write("part.step");

    EXPECT_EQ(found("part.step"), "part.step");
    EXPECT_EQ(found("Part.step"), "Part.step");
}

TEST_F(FoundFile, IsOtherwiseTheOneThatDiffersOnlyInCase) {
    write("Shared Designs/V2/PART.STEP");

    EXPECT_EQ(found("shared designs/v2/part.step"), "Shared Designs/V2/PART.STEP");
}

TEST_F(FoundFile, SearchesEachFolderThatDiffersOnlyInCase) {
    write("A/one.step");
    write("a/two.step");

    EXPECT_EQ(found("a/ONE.STEP"), "A/one.step");
}

TEST_F(FoundFile, RefusesTwoThatDifferOnlyInCase) {
    write("PART.step");
    write("Part.step");

    EXPECT_EQ(found("part.step"), (folder.path() / "part.step").string() + ": \"" +
                                      (folder.path() / "PART.step").string() + "\" and \"" +
                                      (folder.path() / "Part.step").string() +
                                      "\" differ only in case; rename one");
}

TEST_F(FoundFile, RefusesAMissingFile) {
    EXPECT_EQ(found("part.step"), (folder.path() / "part.step").string() + ": no such file");
}

TEST_F(FoundFile, ComparesTheLettersAToZ) {
    write(
        "\xC4\x8C"
        "AST.step");

    EXPECT_EQ(found("\xC4\x8C"
                    "ast.step"),
              "\xC4\x8C"
              "AST.step");
    EXPECT_NE(found("\xC4\x8D"
                    "ast.step"),
              "\xC4\x8C"
              "AST.step");
}

}  // namespace
