#include "host/design/shape_invariants.h"

#include <gtest/gtest.h>

namespace {

/// A cuboid of 1 cm x 2 cm x 3 cm.
host::ShapeInvariants cuboid() {
    return {.volume = 6,
            .area = 22,
            .secondMoments = {2.5, 5, 6.5},
            .thirdMoments = {},
            .solids = 1,
            .shells = 1,
            .faces = 6,
            .edges = 12,
            .vertices = 8,
            .faceAreas = {2, 2, 3, 3, 6, 6}};
}

TEST(ShapeInvariants, AreEqualToThemselves) { EXPECT_TRUE(canBeEqual(cuboid(), cuboid())); }

TEST(ShapeInvariants, AreEqualUpToTheLastDigits) {
    host::ShapeInvariants other = cuboid();
    other.volume *= 1 + 1e-7;
    other.area *= 1 - 1e-7;
    other.secondMoments[1] *= 1 + 1e-7;
    other.faceAreas[0] *= 1 + 1e-7;

    EXPECT_TRUE(canBeEqual(cuboid(), other));
}

TEST(ShapeInvariants, DifferByAVolume) {
    host::ShapeInvariants other = cuboid();
    other.volume *= 1 + 3e-5;

    EXPECT_FALSE(canBeEqual(cuboid(), other));
}

TEST(ShapeInvariants, DifferByTheAreaOfAFace) {
    host::ShapeInvariants other = cuboid();
    other.faceAreas[0] += 2e-4;

    EXPECT_FALSE(canBeEqual(cuboid(), other));
}

TEST(ShapeInvariants, DifferByACount) {
    host::ShapeInvariants other = cuboid();
    other.edges = 13;

    EXPECT_FALSE(canBeEqual(cuboid(), other));
}

TEST(ShapeInvariants, DifferByASecondMoment) {
    host::ShapeInvariants other = cuboid();
    other.secondMoments[0] += 1e-3;

    EXPECT_FALSE(canBeEqual(cuboid(), other));
}

TEST(ShapeInvariants, DifferInAMirror) {
    host::ShapeInvariants left = cuboid();
    host::ShapeInvariants right = cuboid();
    left.thirdMoments = {0.5, 0.7, 0.01, 0.02};
    right.thirdMoments = {0.5, 0.7, -0.01, -0.02};

    EXPECT_FALSE(canBeEqual(left, right));
}

TEST(ShapeInvariants, AreEqualWhereThereIsNothing) {
    EXPECT_TRUE(canBeEqual(host::ShapeInvariants(), host::ShapeInvariants()));
}

TEST(ShapeData, HasNoShapeBeyondItsComponents) {
    host::ShapeData data;
    data.ofComponent = {std::nullopt, 0};
    data.shapes.emplace_back().shapeClass = 7;

    EXPECT_EQ(data.classOf(0), std::nullopt);
    EXPECT_EQ(data.classOf(1), 7);
    EXPECT_EQ(data.classOf(2), std::nullopt);
}

}  // namespace
