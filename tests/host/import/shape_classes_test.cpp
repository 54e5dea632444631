#include "host/import/reader/shape_classes.h"

#include "tests/host/import/drawn_shapes.h"

#include "host/design/shape_invariants.h"

#include <BRepPrimAPI_MakeCone.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRepPrimAPI_MakeTorus.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace {

using Shapes = std::vector<TopoDS_Shape>;

/// Sanitizers make each placement some twenty times as slow.
#if defined(__SANITIZE_ADDRESS__)
constexpr int kPlacements = 50;
#else
constexpr int kPlacements = 1000;
#endif

bool areEqual(const TopoDS_Shape& one, const TopoDS_Shape& other) {
    const std::vector<int> numbers = shapes::classes({one, other});
    return numbers[0] >= 0 && numbers[0] == numbers[1];
}

/// How many classes the shape makes with copies of itself, each placed at random.
std::size_t classesOfPlaced(const TopoDS_Shape& shape, int placements) {
    std::mt19937 random(20250711);
    Shapes all = {shape};
    for (int copy = 0; copy < placements; ++copy) {
        all.push_back(shapes::placed(shape, random));
    }
    const std::vector<int> numbers = shapes::classes(all);
    return std::set<int>(numbers.begin(), numbers.end()).size();
}

bool invariantsAreEqual(const TopoDS_Shape& one, const TopoDS_Shape& other) {
    return host::canBeEqual(step::marksOf(one).invariants, step::marksOf(other).invariants);
}

TopoDS_Shape compound(const Shapes& parts) {
    TopoDS_Compound all;
    BRep_Builder builder;
    builder.MakeCompound(all);
    for (const TopoDS_Shape& part : parts) {
        builder.Add(all, part);
    }
    return all;
}

TopoDS_Shape moved(const TopoDS_Shape& shape, double x, double y, double z) {
    gp_Trsf shift;
    shift.SetTranslation({x, y, z});
    return shape.Moved(shift);
}

TEST(ShapeClasses, AreTheSameWhereverAPartIsPlaced) {
    EXPECT_EQ(classesOfPlaced(shapes::stepBlock(12, 11), kPlacements), 1U);
}

TEST(ShapeClasses, AreTheSameForPlacedFreeFormSurfaces) {
    EXPECT_EQ(classesOfPlaced(shapes::twistedBar(40), kPlacements / 20), 1U);
}

struct Body {
    std::string name;
    TopoDS_Shape shape;
};

class SymmetricBody : public testing::TestWithParam<Body> {};

TEST_P(SymmetricBody, IsEqualHoweverItIsTurned) {
    EXPECT_EQ(classesOfPlaced(GetParam().shape, 20), 1U);
}

TEST_P(SymmetricBody, IsEqualToItsMirrorImage) {
    std::mt19937 random(1);

    EXPECT_TRUE(
        areEqual(GetParam().shape, shapes::placed(shapes::mirrored(GetParam().shape), random)));
}

TEST_P(SymmetricBody, DiffersFromALargerOne) {
    std::mt19937 random(2);

    EXPECT_FALSE(areEqual(GetParam().shape,
                          shapes::placed(shapes::scaled(GetParam().shape, 1 + 1e-4), random)));
}

INSTANTIATE_TEST_SUITE_P(Shapes, SymmetricBody,
                         testing::Values(Body{"Cube", shapes::block(10, 10, 10)},
                                         Body{"SquareBar", shapes::block(10, 10, 40)},
                                         Body{"Cuboid", shapes::block(10, 20, 30)},
                                         Body{"Sphere", BRepPrimAPI_MakeSphere(7).Shape()},
                                         Body{"Torus", BRepPrimAPI_MakeTorus(20, 3).Shape()},
                                         Body{"Cylinder", BRepPrimAPI_MakeCylinder(4, 20).Shape()},
                                         Body{"Cone", BRepPrimAPI_MakeCone(8, 3, 12).Shape()},
                                         Body{"TurnedPart", shapes::turnedPart(0)},
                                         Body{"EllipticCylinder", shapes::ellipticCylinder()},
                                         Body{"Disc", shapes::disc(45)},
                                         Body{"SymmetricBlock", shapes::symmetricBlock()},
                                         Body{"HollowCube", shapes::hollowCube()}),
                         [](const testing::TestParamInfo<Body>& test) { return test.param.name; });

TEST(ShapeClasses, DoNotDependOnWhereATurnedPartHasItsSeam) {
    EXPECT_TRUE(areEqual(shapes::turnedPart(0), shapes::turnedPart(77)));
}

TEST(ShapeClasses, DifferForAMirroredChiralPart) {
    const TopoDS_Shape part = shapes::stepBlock(12, 11);

    EXPECT_FALSE(areEqual(part, shapes::mirrored(part)));
}

TEST(ShapeClasses, DifferForAMirroredTwist) {
    const TopoDS_Shape part = shapes::twistedBar(40);

    EXPECT_FALSE(areEqual(part, shapes::mirrored(part)));
}

TEST(ShapeClasses, DifferForAPartScaledByATenthOfAPerMille) {
    const TopoDS_Shape part = shapes::stepBlock(12, 11);

    EXPECT_FALSE(areEqual(part, shapes::scaled(part, 1 + 1e-4)));
}

TEST(ShapeClasses, DifferWhereOneHoleMoved) {
    EXPECT_FALSE(areEqual(shapes::stepBlock(12, 11), shapes::stepBlock(12.01, 11)));
}

TEST(ShapeClasses, DifferForACubeAndAHollowOneOfTheSameVolume) {
    const host::ShapeInvariants cube = step::marksOf(shapes::block(10, 10, 10)).invariants;
    const host::ShapeInvariants hollow = step::marksOf(shapes::hollowCube()).invariants;

    ASSERT_NEAR(cube.volume, hollow.volume, 1e-9);
    EXPECT_FALSE(areEqual(shapes::block(10, 10, 10), shapes::hollowCube()));
}

// Squares have the moments of a circle up to the third order, however they are turned.
TEST(ShapeClasses, DifferForPartsWhoseInvariantsAreTheSame) {
    ASSERT_TRUE(invariantsAreEqual(shapes::disc(30), shapes::disc(40)));

    EXPECT_FALSE(areEqual(shapes::disc(30), shapes::disc(40)));
}

// Turned by 30 or by 60 degrees, the other square becomes the first one.
TEST(ShapeClasses, AreTheSameWhereAPatternIsCountedFromElsewhere) {
    EXPECT_TRUE(areEqual(shapes::disc(30), shapes::disc(60)));
}

TEST(ShapeClasses, TellBoltsOfEqualVolumeApart) {
    const TopoDS_Shape longBolt = BRepPrimAPI_MakeCylinder(2, 36).Shape();
    const TopoDS_Shape thickBolt = BRepPrimAPI_MakeCylinder(3, 16).Shape();

    EXPECT_FALSE(areEqual(longBolt, thickBolt));
}

TEST(ShapeClasses, CompareAllSolidsOfAPart) {
    const TopoDS_Shape cube = shapes::block(5, 5, 5);
    const TopoDS_Shape pair = compound({cube, moved(shapes::block(9, 4, 2), 20, 3, 1)});
    const TopoDS_Shape apart = compound({cube, moved(shapes::block(9, 4, 2), 21, 3, 1)});
    std::mt19937 random(3);

    EXPECT_TRUE(areEqual(pair, shapes::placed(pair, random)));
    EXPECT_FALSE(areEqual(pair, apart));
}

TEST(ShapeClasses, CompareShellsAndFaces) {
    const TopoDS_Shape shell = TopExp_Explorer(shapes::stepBlock(12, 11), TopAbs_SHELL).Current();
    const TopoDS_Shape face = TopExp_Explorer(shapes::block(3, 4, 5), TopAbs_FACE).Current();
    std::mt19937 random(4);

    EXPECT_TRUE(areEqual(shell, shapes::placed(shell, random)));
    EXPECT_TRUE(areEqual(face, shapes::placed(face, random)));
    EXPECT_FALSE(areEqual(shell, shapes::stepBlock(12, 11)));
}

TEST(ShapeClasses, DoNotDependOnTheOrder) {
    std::mt19937 random(5);
    Shapes all;
    for (const double x : {10.0, 11.0, 12.0, 13.0}) {
        for (int copy = 0; copy < 3; ++copy) {
            all.push_back(shapes::placed(shapes::stepBlock(x, 11), random));
        }
    }
    const std::vector<int> before = shapes::classes(all);
    std::reverse(all.begin(), all.end());
    std::vector<int> after = shapes::classes(all);
    std::reverse(after.begin(), after.end());

    EXPECT_EQ(before, after);
    EXPECT_EQ(std::set<int>(before.begin(), before.end()).size(), 4U);
}

TEST(ShapeClasses, LeaveOutWhatCannotBeMeasured) {
    EXPECT_EQ(shapes::classes({compound({}), shapes::block(1, 2, 3)}), (std::vector<int>{-1, 0}));
}

}  // namespace
