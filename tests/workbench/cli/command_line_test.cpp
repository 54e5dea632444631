#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

using test_support::isOneLine;
using test_support::ProgramResult;

using CommandLine = test_support::Workbench;

TEST_F(CommandLine, AnUnknownOptionIsWrongUsage) {
    const ProgramResult result = run({"bom", "--nonsense", "a.step"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(CommandLine, WithoutACommandItIsWrongUsage) {
    const ProgramResult result = run({});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
}

TEST_F(CommandLine, AnUnknownFormatNamesTheOnesThereAre) {
    const ProgramResult result = run({"bom", "a.step", "--format", "xml"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("{table,csv,json}"), std::string::npos) << result.errors;
}

TEST_F(CommandLine, HelpAndVersionSucceed) {
    const ProgramResult help = run({"bom", "--help"});
    const ProgramResult version = run({"--version"});

    EXPECT_EQ(help.status, 0);
    EXPECT_NE(help.output.find("--tab"), std::string::npos) << help.output;
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.output.rfind("tarnix-workbench ", 0), 0U) << version.output;
}
