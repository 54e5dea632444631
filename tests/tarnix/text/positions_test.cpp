#include "tarnix/text/positions.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(Position, IsAsDeepAsItHasPoints) {
    EXPECT_EQ(positionDepth("12"), 0);
    EXPECT_EQ(positionDepth("1.2.3"), 2);
    EXPECT_EQ(positionDepth(""), 0);
}

TEST(Position, LosesItsIndent) {
    EXPECT_EQ(stripPositionPrefix("` _-|1.2-3"), "1.2-3");
    EXPECT_EQ(stripPositionPrefix("1.2"), "1.2");
    EXPECT_EQ(stripPositionPrefix("__"), "");
    EXPECT_EQ(stripPositionPrefix(""), "");
}

}  // namespace
}  // namespace tarnix
