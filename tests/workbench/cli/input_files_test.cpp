#include "workbench/cli/input_files.h"

#include "tests/support/temporary_folder.h"
#include "tests/workbench/refusal.h"

#include "host/base/utf8_path.h"

#include <gtest/gtest.h>

namespace {

using test_support::refusal;
using Names = std::vector<std::string>;

Names expandInputs(const Names& arguments) {
    Names unreadable;
    Names files = workbench::expandInputs(arguments, unreadable);
    EXPECT_EQ(unreadable, Names());
    return files;
}

class InputFiles : public testing::Test {
protected:
    void SetUp() override {
        for (const char* const name : {"b.step", "a.STP", "notes.txt", "sub/c.p21", "sub/c.step.gz",
                                       "sub/deep/d.design.json", ".hidden/e.step", ".f.step"}) {
            folder.write(name, "");
        }
    }

    /// A path in the folder.
    [[nodiscard]] std::string in(const std::string& name) const {
        return host::toUtf8(folder.path() / host::fromUtf8(name));
    }

    /// The files that arguments name, relative to the folder, with slashes.
    [[nodiscard]] Names expanded(const Names& arguments) const {
        Names inFolder;
        for (const std::string& each : arguments) {
            inFolder.push_back(in(each));
        }
        Names names;
        for (const std::string& file : expandInputs(inFolder)) {
            const auto relative =
                host::fromUtf8(file).lexically_normal().lexically_relative(folder.path());
            const std::u8string name = relative.generic_u8string();
            names.emplace_back(name.begin(), name.end());
        }
        return names;
    }

    test_support::TemporaryFolder folder;
};

TEST_F(InputFiles, AFolderStandsForTheDesignsInItAndBelow) {
    EXPECT_EQ(expanded({"."}),
              (Names{"a.STP", "b.step", "sub/c.p21", "sub/c.step.gz", "sub/deep/d.design.json"}));
}

TEST_F(InputFiles, APatternMatchesNamesInItsFolder) {
    EXPECT_EQ(expanded({"*.step"}), Names{"b.step"});
    EXPECT_EQ(expanded({"?.*"}), (Names{"a.STP", "b.step"}));
    EXPECT_EQ(expanded({"*/c.*"}), (Names{"sub/c.p21", "sub/c.step.gz"}));
}

TEST_F(InputFiles, TwoStarsMatchAnyNumberOfFolders) {
    EXPECT_EQ(expanded({"**/*.design.json"}), Names{"sub/deep/d.design.json"});
    EXPECT_EQ(expanded({"**/*.step"}), Names{"b.step"});
    EXPECT_EQ(expanded({"sub/**/c.p21"}), Names{"sub/c.p21"});
}

TEST_F(InputFiles, WhatIsNamedTwiceIsThereOnce) {
    EXPECT_EQ(expanded({"b.step", "*.step", "sub"}),
              (Names{"b.step", "sub/c.p21", "sub/c.step.gz", "sub/deep/d.design.json"}));
}

TEST_F(InputFiles, WhatIsSpeltDifferentlyIsThereOnce) {
    EXPECT_EQ(expanded({"b.step", "./b.step", "sub/../b.step", "missing.step", "./missing.step"}),
              (Names{"b.step", "missing.step"}));
    EXPECT_EQ(expandInputs({"-", "-"}), Names{"-"});
}

TEST_F(InputFiles, AFileIsItselfWhateverItsName) {
    EXPECT_EQ(expanded({"notes.txt", "missing.step"}), (Names{"notes.txt", "missing.step"}));
    EXPECT_EQ(expandInputs({"-"}), Names{"-"});
}

TEST_F(InputFiles, AFolderWithoutDesignsAndAPatternWithoutMatchesAreRefused) {
    folder.write("empty/notes.txt", "");

    EXPECT_EQ(refusal([&] { expandInputs({in("empty")}); }),
              in("empty") + ": the folder holds no STEP, IGES or design file");
    EXPECT_EQ(refusal([&] { expandInputs({in("*.sldasm")}); }),
              in("*.sldasm") + ": no file matches");
}

TEST(PatternMatch, StarsTakeAsMuchAsTheyMust) {
    using workbench::matchesPattern;

    EXPECT_TRUE(matchesPattern("part-12-a.step", "*-*a.st*"));
    EXPECT_FALSE(matchesPattern("part-12-b.step", "*-*a.st*"));
    EXPECT_TRUE(matchesPattern("a.step", "***"));
    EXPECT_TRUE(matchesPattern("\xC3\xA9.step", "?.step"));
    EXPECT_FALSE(matchesPattern("", "?"));
    EXPECT_FALSE(matchesPattern(".a.step", "*.step"));
    EXPECT_TRUE(matchesPattern(".a.step", ".*.step"));
}

TEST(DesignStem, IsTheNameWithoutAllEndings) {
    using workbench::stemOf;

    EXPECT_EQ(stemOf("dir/Gear.v2.step"), "Gear.v2");
    EXPECT_EQ(stemOf("Gear.STP.gz"), "Gear");
    EXPECT_EQ(stemOf("Gear.design.json"), "Gear");
    EXPECT_EQ(stemOf("Gear.txt"), "Gear");
    EXPECT_EQ(stemOf("Gear"), "Gear");
}

}  // namespace
