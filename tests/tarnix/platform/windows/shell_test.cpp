#include "tests/tarnix/platform/shell_fixture.h"

#include "tests/support/temporary_folder.h"

#include <algorithm>

namespace tarnix::platform {
namespace {

using WindowsShell = Shell;

TEST_F(WindowsShell, FailsForAFileThatIsNotThere) {
    const test_support::TemporaryFolder folder;
    EXPECT_FALSE(openWithShell(folder.windows("missing.xlsm")));
}

TEST_F(WindowsShell, FailsForAStringThatIsNotAnAddress) {
    EXPECT_FALSE(openWithShell("no address at all", ShellTarget::Address));
}

TEST_F(WindowsShell, CharactersOfTheCommandLineMeanNothingInAnAddress) {
    EXPECT_TRUE(openWithShell("http://a.example/$(touch)`false`;ab'd'*&|>z", ShellTarget::Address));
    // The browser of Wine escapes what an address cannot hold.
    const std::string address = opened();
    EXPECT_EQ(address.rfind("http://a.example/$(touch)", 0), 0U) << address;
    EXPECT_TRUE(address.ends_with("z\n")) << address;
    EXPECT_EQ(std::count(address.begin(), address.end(), '\n'), 1) << address;
}

}  // namespace
}  // namespace tarnix::platform
