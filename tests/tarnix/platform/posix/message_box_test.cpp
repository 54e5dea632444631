#include "tarnix/platform/native.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

namespace tarnix::platform {
namespace {

TEST(PosixMessageBox, IsALineAmongTheMessagesOfTheProgram) {
    std::ostringstream written;
    std::streambuf* const before = std::cerr.rdbuf(written.rdbuf());
    native::showMessageBox("Target directory does not exist.", "Information",
                           MessageStyle::Information);
    std::cerr.rdbuf(before);
    EXPECT_EQ(written.str(), "Information: Target directory does not exist.\n");
}

}  // namespace
}  // namespace tarnix::platform
