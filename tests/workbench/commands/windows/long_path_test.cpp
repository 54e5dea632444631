#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

using test_support::ProgramResult;

using LongPath = test_support::Workbench;

TEST_F(LongPath, IsNamedAsTheReason) {
    const std::string file = path(std::string(300, 'a') + ".design.json");

    const ProgramResult result = run({"info", file});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors.rfind("tarnix-workbench: " + file + ": its whole path has ", 0), 0U)
        << result.errors;
    EXPECT_TRUE(result.errors.ends_with(
        " characters, but Windows opens at most 259; move it to a shorter path\n"))
        << result.errors;
}
