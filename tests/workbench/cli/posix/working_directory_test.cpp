#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using test_support::ProgramResult;
using WorkingDirectory = test_support::Workbench;

TEST_F(WorkingDirectory, ThatWasDeletedIsNamedAsTheReason) {
    const std::filesystem::path before = std::filesystem::current_path();
    const std::filesystem::path gone = folder.path() / "gone";
    std::filesystem::create_directory(gone);
    std::filesystem::current_path(gone);
    std::filesystem::remove(gone);

    const ProgramResult result = run({"info", "a.step"});
    std::filesystem::current_path(before);

    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors,
              "tarnix-workbench: the working directory does not exist any more; change to another "
              "one\n");
}

}  // namespace
