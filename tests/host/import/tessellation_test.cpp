#include "host/import/reader/tessellation.h"

#include "tests/host/import/drawn_shapes.h"

#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <BRep_Builder.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS_Compound.hxx>
#include <gp_Ax2.hxx>
#include <gp_Circ.hxx>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <vector>

namespace {

using host::MeshDetail;
using host::ShapeMesh;

constexpr host::Rgba kRed = {.red = 255, .green = 0, .blue = 0, .alpha = 255};
constexpr host::Rgba kGlass = {.red = 200, .green = 220, .blue = 255, .alpha = 128};

ShapeMesh meshOf(const TopoDS_Shape& shape, const step::Colours& colours = {}) {
    return step::tessellate(shape, {.colours = colours, .bodies = {}}, {}).mesh.value();
}

double coordinate(const ShapeMesh& mesh, std::size_t corner, std::size_t axis) {
    return mesh.positionsMm.at(std::size_t{3} * mesh.indices.at(corner) + axis);
}

/// What the triangles enclose; negative where they are seen from inside.
double volumeOf(const ShapeMesh& mesh) {
    double volume = 0;
    for (std::size_t at = 0; at < mesh.indices.size(); at += 3) {
        const auto cell = [&](std::size_t corner, std::size_t axis) {
            return coordinate(mesh, at + corner, axis);
        };
        volume += (cell(0, 0) * (cell(1, 1) * cell(2, 2) - cell(1, 2) * cell(2, 1)) -
                   cell(0, 1) * (cell(1, 0) * cell(2, 2) - cell(1, 2) * cell(2, 0)) +
                   cell(0, 2) * (cell(1, 0) * cell(2, 1) - cell(1, 1) * cell(2, 0))) /
                  6;
    }
    return volume;
}

TEST(Tessellation, DrawsACubeByTwoTrianglesForEachSide) {
    const ShapeMesh mesh = meshOf(shapes::block(10, 10, 10));

    EXPECT_EQ(mesh.triangles(), 12U);
    EXPECT_EQ(mesh.positionsMm.size(), 3U * 24);
    EXPECT_EQ(mesh.edgeEnds.size(), 12U);
    EXPECT_EQ(mesh.detail, MeshDetail::Fine);
    EXPECT_NEAR(volumeOf(mesh), 1000, 1e-6);
}

TEST(Tessellation, FollowsTheSizeOfAPart) {
    const ShapeMesh small = meshOf(BRepPrimAPI_MakeSphere(1).Shape());
    const ShapeMesh large = meshOf(BRepPrimAPI_MakeSphere(1000).Shape());

    EXPECT_EQ(small.triangles(), large.triangles());
    EXPECT_NEAR(volumeOf(small), 4.0 / 3 * std::numbers::pi, 0.1);
}

TEST(Tessellation, LooksOutwards) {
    const ShapeMesh mesh = meshOf(BRepPrimAPI_MakeSphere(1).Shape());
    double least = 1;
    for (std::size_t at = 0; at < mesh.normals.size(); at += 3) {
        double along = 0;
        for (std::size_t axis = 0; axis < 3; ++axis) {
            along += static_cast<double>(mesh.normals[at + axis]) * mesh.positionsMm[at + axis];
        }
        least = std::min(least, along);
    }

    EXPECT_NEAR(least, 1, 1e-3);
}

TEST(Tessellation, DrawsNoSeamAndNoSmoothEdge) {
    // The two circles.
    EXPECT_EQ(meshOf(BRepPrimAPI_MakeCylinder(4, 20).Shape()).edgeEnds.size(), 2U);
    EXPECT_EQ(meshOf(BRepPrimAPI_MakeSphere(4).Shape()).edgeEnds.size(), 0U);
    // Of the five circles of the profile the two at which the fillet begins and ends are smooth.
    EXPECT_EQ(meshOf(shapes::turnedPart(0)).edgeEnds.size(), 3U);
}

TEST(Tessellation, DrawsTheRimOfAFace) {
    const TopoDS_Shape face = TopExp_Explorer(shapes::block(3, 4, 5), TopAbs_FACE).Current();

    EXPECT_EQ(meshOf(face).edgeEnds.size(), 4U);
    EXPECT_EQ(meshOf(face).triangles(), 2U);
}

TEST(Tessellation, ColoursAFaceOtherThanItsSolid) {
    const TopoDS_Shape solid = shapes::block(1, 2, 3);
    const TopoDS_Shape face = TopExp_Explorer(solid, TopAbs_FACE).Current();

    const ShapeMesh mesh =
        meshOf(solid, {{solid.TShape().get(), kRed}, {face.TShape().get(), kGlass}});

    const std::vector<host::MeshGroup> expected = {
        {.firstIndex = 0, .indexCount = 6, .colour = kGlass, .ofFaces = true},
        {.firstIndex = 6, .indexCount = 30, .colour = kRed}};
    EXPECT_EQ(mesh.groups, expected);
}

TEST(Tessellation, LeavesTheShapeAsItWas) {
    const TopoDS_Shape sphere = BRepPrimAPI_MakeSphere(1).Shape();

    EXPECT_EQ(meshOf(sphere), meshOf(sphere));
}

TEST(Tessellation, DrawsMoreCoarselyWhatNeedsTooManyTriangles) {
    const TopoDS_Shape sphere = BRepPrimAPI_MakeSphere(1).Shape();
    const std::size_t fine = meshOf(sphere).triangles();

    const step::Tessellation coarse =
        step::tessellate(sphere, {}, {.triangles = fine - 1, .seconds = 60});

    EXPECT_EQ(coarse.mesh.value().detail, MeshDetail::Coarse);
    EXPECT_LT(coarse.mesh.value().triangles(), fine);
    EXPECT_EQ(coarse.problem, "");
}

TEST(Tessellation, DrawsABoxForWhatNeedsFarTooMany) {
    const step::Tessellation box =
        step::tessellate(BRepPrimAPI_MakeSphere(1).Shape(), {}, {.triangles = 12, .seconds = 60});

    EXPECT_EQ(box.mesh.value().detail, MeshDetail::Box);
    EXPECT_EQ(box.problem, "it needs more than 12 triangles");
    EXPECT_FALSE(box.isByLimit);
    EXPECT_NEAR(volumeOf(box.mesh.value()), 8, 0.01);
}

TEST(Tessellation, DrawsABoxForWhatTakesTooLong) {
    const step::Tessellation box = step::tessellate(BRepPrimAPI_MakeSphere(1).Shape(), {},
                                                    {.triangles = 200'000, .seconds = 0});

    EXPECT_EQ(box.mesh.value().detail, MeshDetail::Box);
    EXPECT_EQ(box.problem, "its triangles take too long");
    EXPECT_TRUE(box.isByLimit);
}

TEST(Tessellation, IsAsCloseAsAskedFor) {
    const TopoDS_Shape sphere = BRepPrimAPI_MakeSphere(1).Shape();
    const auto triangles = [&](double deflection, double angle) {
        return step::tessellate(sphere, {}, {.deflection = deflection, .angle = angle})
            .mesh.value()
            .triangles();
    };

    EXPECT_LT(triangles(0.01, 0.8), triangles(0.001, 0.8));
    EXPECT_LT(triangles(0.01, 0.8), triangles(0.01, 0.2));
}

TopoDS_Shape circle(double radius) {
    return BRepBuilderAPI_MakeEdge(gp_Circ(gp_Ax2(), radius)).Edge();
}

TEST(CurveTessellation, FollowsACircle) {
    const ShapeMesh mesh =
        step::tessellateCurves(circle(10), {.deflection = 0.001, .angle = 0.35}).mesh.value();

    EXPECT_TRUE(mesh.indices.empty());
    ASSERT_EQ(mesh.edgeEnds.size(), 1U);
    // 2 pi by 0.35 is 18 segments at least.
    EXPECT_GE(mesh.edgeEnds[0], 19U);
    for (std::size_t at = 0; at < mesh.edgePointsMm.size(); at += 3) {
        EXPECT_NEAR(std::hypot(mesh.edgePointsMm[at], mesh.edgePointsMm[at + 1]), 10, 1e-5);
    }
}

TEST(CurveTessellation, DrawsABoxForWhatNeedsTooManyLines) {
    const step::Tessellation box = step::tessellateCurves(circle(10), {.triangles = 12});

    EXPECT_EQ(box.mesh.value().detail, MeshDetail::Box);
    EXPECT_EQ(box.problem, "it needs more than 12 lines");
}

TEST(CurveTessellation, DrawsABoxForWhatTakesTooLong) {
    const step::Tessellation box = step::tessellateCurves(circle(10), {.seconds = 0});

    EXPECT_EQ(box.mesh.value().detail, MeshDetail::Box);
    EXPECT_EQ(box.problem, "its lines take too long");
    EXPECT_TRUE(box.isByLimit);
}

TEST(Tessellation, HasNothingToDrawOfNothing) {
    TopoDS_Compound nothing;
    BRep_Builder().MakeCompound(nothing);

    const step::Tessellation result = step::tessellate(nothing, {}, {});

    EXPECT_FALSE(result.mesh.has_value());
    EXPECT_EQ(result.problem, "it has no extent that could be found");
}

}  // namespace
