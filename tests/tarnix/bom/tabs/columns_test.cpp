#include "tarnix/bom/tabs/columns.h"

#include <gtest/gtest.h>

namespace tarnix {
namespace {

TEST(Column, IsSplitAtTheFirstSemicolon) {
    const Column column = columnOf("QEMA_Mass;Mass; total");
    EXPECT_EQ(column.key, "QEMA_Mass");
    EXPECT_EQ(column.label, "Mass; total");
}

TEST(Column, WithoutSemicolonIsItsOwnKeyAndLabel) {
    const Column column = columnOf("QEMA_Mass");
    EXPECT_EQ(column.key, "QEMA_Mass");
    EXPECT_EQ(column.label, "QEMA_Mass");
}

TEST(Label, HasItsUnitBehindFourWords) {
    EXPECT_EQ(labelWithUnit("Mass"), "Mass [kg]");
    EXPECT_EQ(labelWithUnit("Area"), "Area [cm\xC2\xB2]");
    EXPECT_EQ(labelWithUnit("Density"), "Density [kg/m\xC2\xB3]");
    EXPECT_EQ(labelWithUnit("Volume"), "Volume [cm\xC2\xB3]");
}

TEST(Label, IsComparedAsAWholeAndByCase) {
    EXPECT_EQ(labelWithUnit("Masses"), "Masses");
    EXPECT_EQ(labelWithUnit("mass"), "mass");
    EXPECT_EQ(labelWithUnit("Mass "), "Mass ");
    EXPECT_EQ(labelWithUnit("Length"), "Length");
}

TEST(ColumnRatio, HidesTheUnconfiguredColumnsUpToTheTwelfth) {
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 0), "2:0:8:12:8:0:0:0:0:0:0:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 2), "2:0:8:12:8:8:8:0:0:0:0:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 6), "2:0:8:12:8:8:8:8:8:8:8:0");
    EXPECT_EQ(extendColumnRatio("2:0:8:12:8", 7), "2:0:8:12:8:8:8:8:8:8:8:8");
    EXPECT_EQ(extendColumnRatio("2:3:0:12:8", 8), "2:3:0:12:8:8:8:8:8:8:8:8:8");
}

}  // namespace
}  // namespace tarnix
