#include "tests/tarnix/platform/shell_test.h"

#include "tests/tarnix/platform/scratch_folder.h"

namespace tarnix::platform {
namespace {

using WindowsShell = Shell;

TEST_F(WindowsShell, FailsForAFileThatIsNotThere) {
    const ScratchFolder folder;
    EXPECT_FALSE(openWithShell(folder.windows("missing.xlsm")));
}

}  // namespace
}  // namespace tarnix::platform
