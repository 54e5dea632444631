#include "workbench/output/design_files.h"

#include "workbench/cli/exit_code.h"

#include "host/base/utf8_path.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace workbench {
namespace {

TEST(FileName, IsUnchangedWhereEachSystemTakesIt) {
    EXPECT_EQ(fileName("Gear box, v2 (new)"), "Gear box, v2 (new)");
    EXPECT_EQ(fileName("P\xC5\x99\xC3\xADruba"), "P\xC5\x99\xC3\xADruba");
}

TEST(FileName, LeadsOutOfNoFolder) {
    EXPECT_EQ(fileName("../../etc/a"), "_._.._etc_a");
    EXPECT_EQ(fileName("C:\\a"), "C__a");
}

TEST(FileName, HasNoControlCharacters) { EXPECT_EQ(fileName("a\nb\tc"), "a_b_c"); }

TEST(FileName, IsNeverEmptyOrHidden) {
    EXPECT_EQ(fileName(""), "_");
    EXPECT_EQ(fileName(".a"), "_a");
}

TEST(SaveTarget, OfAPackedFileHasTheNameWithoutTheEnding) {
    const test_support::TemporaryFolder folder;
    const auto nameFor = [&](const char* name) {
        return saveTarget(host::toUtf8(folder.path() / name), "").name.filename().string();
    };

    EXPECT_EQ(nameFor("Part.step"), "Part.design.json");
    EXPECT_EQ(nameFor("Part.step.gz"), "Part.design.json");
    EXPECT_EQ(nameFor("Part.stpz"), "Part.design.json");
    EXPECT_EQ(nameFor("Part.design.json.gz"), "Part.design.json");
    EXPECT_EQ(nameFor("Part.design.json"), "Part.design.json");
}

TEST(SaveTarget, OfTheStandardInputHasToBeNamed) {
    EXPECT_EQ(saveTarget("-", "a.design.json").name, "a.design.json");
    try {
        saveTarget("-", "");
        FAIL() << "has a name";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.code(), ExitCode::BadUsage);
        EXPECT_EQ(std::string(failure.what()),
                  "--save: a design that comes from the standard input has no name; name its file, "
                  "as in --save assembly.design.json");
    }
}

TEST(DesignFiles, OfTheSameNameGetNumbers) {
    const test_support::TemporaryFolder folder;
    host::DesignData design;
    design.name = "Part";
    design.components.emplace_back().name = "Part";

    saveInFolder({design, design, design}, folder.path());

    EXPECT_EQ(host::loadDesignFile(folder.path() / "Part.design.json").name, "Part");
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Part (2).design.json"));
    EXPECT_TRUE(std::filesystem::exists(folder.path() / "Part (3).design.json"));
}

}  // namespace
}  // namespace workbench
