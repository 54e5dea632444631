#include "host/design/box_mesh.h"

#include <cstddef>

namespace host {
namespace {

using Point = std::array<float, 3>;

void append(std::vector<float>& values, const Point& point) {
    values.insert(values.end(), point.begin(), point.end());
}

/// The side at one end of an axis, seen from outside against the clock.
void addSide(ShapeMesh& mesh, const std::array<Point, 2>& ends, std::size_t axis, std::size_t end) {
    // The two axes across, in the order that makes a right-handed turn around the outward normal.
    const std::size_t first = (axis + (end == 1 ? 1 : 2)) % 3;
    const std::size_t second = 3 - axis - first;
    const auto start = static_cast<std::uint32_t>(mesh.positionsMm.size() / 3);
    for (const std::array<std::size_t, 2>& corner :
         {std::array<std::size_t, 2>{0, 0}, {1, 0}, {1, 1}, {0, 1}}) {
        Point point = {};
        point[axis] = ends[end][axis];
        point[first] = ends[corner[0]][first];
        point[second] = ends[corner[1]][second];
        append(mesh.positionsMm, point);
        Point normal = {};
        normal[axis] = end == 1 ? 1.0F : -1.0F;
        append(mesh.normals, normal);
    }
    for (const std::uint32_t corner : {0U, 1U, 2U, 0U, 2U, 3U}) {
        mesh.indices.push_back(start + corner);
    }
}

/// The four edges along an axis.
void addEdges(ShapeMesh& mesh, const std::array<Point, 2>& ends, std::size_t axis) {
    const std::size_t first = (axis + 1) % 3;
    const std::size_t second = (axis + 2) % 3;
    for (std::size_t corner = 0; corner < 4; ++corner) {
        for (const Point& end : ends) {
            Point point = {};
            point[axis] = end[axis];
            point[first] = ends[corner % 2][first];
            point[second] = ends[corner / 2][second];
            append(mesh.edgePointsMm, point);
        }
        mesh.edgeEnds.push_back(static_cast<std::uint32_t>(mesh.edgePointsMm.size() / 3));
    }
}

}  // namespace

ShapeMesh boxMesh(const std::array<float, 3>& minimumMm, const std::array<float, 3>& maximumMm) {
    const std::array<Point, 2> ends = {minimumMm, maximumMm};
    ShapeMesh mesh;
    mesh.detail = MeshDetail::Box;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        addSide(mesh, ends, axis, 0);
        addSide(mesh, ends, axis, 1);
        addEdges(mesh, ends, axis);
    }
    mesh.groups.push_back({.firstIndex = 0, .indexCount = mesh.indices.size(), .colour = {}});
    return mesh;
}

}  // namespace host
