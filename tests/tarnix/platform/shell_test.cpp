#include "tests/tarnix/platform/shell_fixture.h"

namespace tarnix::platform {
namespace {

TEST_F(Shell, OpensAWebAddress) {
    EXPECT_TRUE(openWithShell("http://helpdesk.example/"));
    EXPECT_EQ(opened(), "http://helpdesk.example/\n");
}

TEST_F(Shell, FailsForAnEmptyAddress) {
    EXPECT_FALSE(openWithShell("", ShellTarget::Address));
    EXPECT_EQ(openedSoFar(), "");
}

TEST_F(Shell, FailsForAnAddressThatNoProgramIsFor) {
    EXPECT_FALSE(openWithShell("unheard-of://a.example/", ShellTarget::Address));
    EXPECT_EQ(openedSoFar(), "");
}

}  // namespace
}  // namespace tarnix::platform
