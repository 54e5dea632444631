#include "host/design/box_mesh.h"

#include <gtest/gtest.h>

namespace {

using host::ShapeMesh;

std::array<float, 3> cornerOf(const ShapeMesh& mesh, std::size_t at) {
    const std::size_t first = std::size_t{3} * mesh.indices.at(at);
    return {mesh.positionsMm.at(first), mesh.positionsMm.at(first + 1),
            mesh.positionsMm.at(first + 2)};
}

/// Of a triangle: the cross product of two of its sides.
std::array<float, 3> turnOf(const ShapeMesh& mesh, std::size_t triangle) {
    const auto a = cornerOf(mesh, 3 * triangle);
    auto b = cornerOf(mesh, 3 * triangle + 1);
    auto c = cornerOf(mesh, 3 * triangle + 2);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        b[axis] -= a[axis];
        c[axis] -= a[axis];
    }
    return {b[1] * c[2] - b[2] * c[1], b[2] * c[0] - b[0] * c[2], b[0] * c[1] - b[1] * c[0]};
}

TEST(BoxMesh, HasTwelveTrianglesAndTwelveEdges) {
    const ShapeMesh mesh = host::boxMesh({0, 0, 0}, {1, 2, 3});

    EXPECT_EQ(mesh.triangles(), 12U);
    EXPECT_EQ(mesh.edgeEnds.size(), 12U);
    EXPECT_EQ(mesh.edgeEnds.back(), 24U);
    EXPECT_EQ(mesh.groups.size(), 1U);
    EXPECT_EQ(mesh.detail, host::MeshDetail::Box);
}

// The first two sides are those across x, at its lower and its upper end: areas of 2 x 3.
TEST(BoxMesh, IsSeenFromOutside) {
    const ShapeMesh mesh = host::boxMesh({0, 0, 0}, {1, 2, 3});

    EXPECT_EQ(turnOf(mesh, 0), (std::array<float, 3>{-6, 0, 0}));
    EXPECT_EQ(turnOf(mesh, 1), (std::array<float, 3>{-6, 0, 0}));
    EXPECT_EQ(turnOf(mesh, 2), (std::array<float, 3>{6, 0, 0}));
    EXPECT_EQ(turnOf(mesh, 6), (std::array<float, 3>{0, 3, 0}));
    EXPECT_EQ(turnOf(mesh, 8), (std::array<float, 3>{0, 0, -2}));
}

}  // namespace
