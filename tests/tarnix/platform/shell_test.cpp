#include "tests/tarnix/platform/shell_test.h"

namespace tarnix::platform {
namespace {

TEST_F(Shell, OpensAWebAddress) {
    EXPECT_TRUE(openWithShell("http://helpdesk.example/"));
    EXPECT_EQ(opened(), "http://helpdesk.example/\n");
}

}  // namespace
}  // namespace tarnix::platform
