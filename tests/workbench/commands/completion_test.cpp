#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

using test_support::firstLines;
using test_support::isOneLine;
using test_support::ProgramResult;

using CompletionCommand = test_support::Workbench;

TEST_F(CompletionCommand, PrintsAScriptForEachShell) {
    const ProgramResult bash = run({"completion", "bash"});
    const ProgramResult zsh = run({"completion", "zsh"});
    const ProgramResult fish = run({"completion", "fish"});

    EXPECT_EQ(bash.status, 0);
    EXPECT_NE(bash.output.find("\ncomplete -F _tarnix_workbench tarnix-workbench\n"),
              std::string::npos);
    EXPECT_EQ(zsh.status, 0);
    EXPECT_EQ(firstLines(zsh.output, 1), "#compdef tarnix-workbench\n");
    EXPECT_EQ(fish.status, 0);
    EXPECT_NE(fish.output.find("-n '__fish_use_subcommand' -f -a bom "), std::string::npos);
}

TEST_F(CompletionCommand, AnUnknownShellNamesTheOnesThereAre) {
    const ProgramResult result = run({"completion", "tcsh"});

    EXPECT_EQ(result.status, 2);
    EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
    EXPECT_NE(result.errors.find("{bash,zsh,fish}"), std::string::npos) << result.errors;
}
