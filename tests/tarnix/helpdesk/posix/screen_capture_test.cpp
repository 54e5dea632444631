#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using CaptureWithoutADisplay = HelpdeskTest;

TEST_F(CaptureWithoutADisplay, OfTheScreenEndsWithoutAWord) {
    press("captureScreen");
    EXPECT_FALSE(std::filesystem::exists(supportFolder()));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(CaptureWithoutADisplay, OfTheHostsWindowEndsWithoutAWord) {
    press("captureFusion");
    EXPECT_FALSE(std::filesystem::exists(supportFolder()));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
