#include "tests/tarnix/commands/open_local_file_fixture.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

namespace {

using OpenLocalFileWithoutLocale = OpenLocalFileTest;

// In a process of its own: what the C library allocates for the search, it does not free.
TEST_F(OpenLocalFileWithoutLocale, ThrowsForTheFirstFile) {
    const std::string file = design("part.f3d");

    EXPECT_EXIT(
        {
            // Where the C library looks for locales, and finds none.
            ::setenv("LOCPATH", "/nowhere", /*overwrite=*/1);
            pick({file});
            std::fputs(
                (uncaughtExceptions() + "; opened " + std::to_string(opened().size())).c_str(),
                stderr);
            ::_exit(0);
        },
        testing::ExitedWithCode(0), "^std::runtime_error: bad locale name in OnExecute; opened 0$");
}

}  // namespace
