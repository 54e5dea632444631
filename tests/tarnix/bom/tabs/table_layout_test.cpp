#include "tarnix/bom/tabs/table_layout.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(ColumnRatio, HidesTheUnconfiguredColumnsUpToTheTwelfth) {
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 0), "2:0:8:12:8:0:0:0:0:0:0:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 2), "2:0:8:12:8:8:8:0:0:0:0:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 6), "2:0:8:12:8:8:8:8:8:8:8:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 7), "2:0:8:12:8:8:8:8:8:8:8:8");
    EXPECT_EQ(extendColumnRatio("2:3:0:12:8", 8), "2:3:0:12:8:8:8:8:8:8:8:8:8");
}

TEST(ColumnRatio, OfElevenColumnsHidesTheUnconfiguredSlots) {
    EXPECT_EQ(elevenColumnRatio("QEMA_bom_structure", 0), "2:3:0:12:8:0:0:0:0:0:0");
    EXPECT_EQ(elevenColumnRatio("QEMA_bom_models", 2), "2:0:8:12:8:8:8:0:0:0:0");
    EXPECT_EQ(elevenColumnRatio("QEMA_bom_models", 7), "2:0:8:12:8:8:8:8:8:8:8");
    EXPECT_EQ(elevenColumnRatio("another", 1), ":8:0:0:0:0:0");
}

}  // namespace
}  // namespace tarnix
