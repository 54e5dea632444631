#include "host/design/transform.h"

#include <gtest/gtest.h>

#include <cmath>

namespace host {
namespace {

/// A quarter turn about z, which takes x to y, and then a shift.
const Transform kQuarter = {{0, -1, 0, 10, 1, 0, 0, 20, 0, 0, 1, 30, 0, 0, 0, 1}};

TEST(TransformTest, ProductPlacesTheInnerInTheOuter) {
    const Transform product = kQuarter * translation(1, 2, 3);

    EXPECT_EQ(product, (Transform{{0, -1, 0, 8, 1, 0, 0, 21, 0, 0, 1, 33, 0, 0, 0, 1}}));
}

TEST(TransformTest, InverseUndoesTheTransform) {
    EXPECT_EQ(*inverse(kQuarter) * kQuarter, Transform());
    EXPECT_EQ(inverse(translation(1, 2, 3)), translation(-1, -2, -3));
    EXPECT_EQ(*inverse(Transform{{2, 0, 0, 6, 0, 4, 0, 8, 0, 0, 8, 8, 0, 0, 0, 1}}),
              (Transform{{0.5, 0, 0, -3, 0, 0.25, 0, -2, 0, 0, 0.125, -1, 0, 0, 0, 1}}));
}

TEST(TransformTest, SingularTransformHasNoInverse) {
    EXPECT_EQ(inverse(Transform{{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}}), std::nullopt);
}

TEST(TransformTest, AxesAreKeptByQuarterTurnsTranslationsAndMirrors) {
    EXPECT_TRUE(keepsAxes({}));
    EXPECT_TRUE(keepsAxes(kQuarter));
    EXPECT_TRUE(keepsAxes({{-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}));
    EXPECT_FALSE(keepsAxes({{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}));
    EXPECT_FALSE(keepsAxes({{1, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1}}));
    const double half = std::sqrt(0.5);
    EXPECT_FALSE(keepsAxes({{half, -half, 0, 0, half, half, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1}}));
}

TEST(TransformTest, PlacedBoxIsTheBoxAroundItsCorners) {
    EXPECT_EQ(placed({{0, 0, 0}, {1, 2, 3}}, kQuarter), (Box{{8, 20, 30}, {10, 21, 33}}));
}

TEST(TransformTest, IncludeExtendsABoxAndStartsFromNone) {
    std::optional<Box> sum;
    include(sum, std::nullopt);
    EXPECT_EQ(sum, std::nullopt);
    include(sum, Box{{0, 0, 0}, {1, 1, 1}});
    include(sum, Box{{-1, 0.5, 0}, {0, 2, 0.5}});
    include(sum, std::nullopt);

    EXPECT_EQ(sum, (Box{{-1, 0, 0}, {1, 2, 1}}));
}

}  // namespace
}  // namespace host
