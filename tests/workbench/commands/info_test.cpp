#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using test_support::isOneLine;
using test_support::ProgramResult;
using test_support::text;
using test_support::writeFile;

using InfoCommand = test_support::Workbench;

TEST_F(InfoCommand, ABrokenDesignFileIsRefusedWithALine) {
    const fs::path file = folder.path() / "broken.design.json";
    writeFile(file, "{\"components\": [");

    const ProgramResult result = run({"info", host::toUtf8(file)});

    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_NE(result.errors.find("broken.design.json"), std::string::npos) << result.errors;
}

TEST_F(InfoCommand, AnEmptyFileIsRefusedWithALine) {
    const fs::path file = folder.path() / "empty.step";
    writeFile(file, "");

    const ProgramResult result = run({"info", host::toUtf8(file)});

    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(InfoCommand, AFolderIsRefusedWithALine) {
    const ProgramResult result = run({"info", host::toUtf8(folder.path())});

    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(InfoCommand, CountsWhatAFileHolds) {
    const ProgramResult result = run({"info", design(R"(
        Frame  material=Aluminium:0.0027 box=10x10x1
          Leg  material=Steel:0.00785 box=1x1x40
          Leg
        Frame
        Bolt  material=Steel:0.00785 box=1x1x1)")});

    EXPECT_EQ(result.status, 0) << result.errors;
    // Frame, its two legs, both again, and the bolt.
    EXPECT_EQ(result.output, text(R"(
        sample

        Components   4
          with shape 3
        Occurrences  7
        Levels       2
        Length unit  unknown

        Material   Density [kg/m³]  Components
        ─────────  ───────────────  ──────────
        Aluminium           2700.0           1
        Steel               7850.0           2
        )") + "\n");
}
