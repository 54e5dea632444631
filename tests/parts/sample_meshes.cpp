#include "tests/parts/sample_meshes.h"

#include "host/design/box_mesh.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace test_support {
namespace {

constexpr host::Rgba kRed = {.red = 200, .green = 30, .blue = 20, .alpha = 255};
constexpr host::Rgba kGlass = {.red = 60, .green = 120, .blue = 220, .alpha = 102};

template <class T>
void append(std::vector<T>& values, const std::vector<T>& more, T shift) {
    for (const T each : more) {
        values.push_back(each + shift);
    }
}

/// Adds what `more` draws, in one colour.
void add(host::ShapeMesh& mesh, const host::ShapeMesh& more,
         const std::optional<host::Rgba>& colour) {
    const auto points = static_cast<std::uint32_t>(mesh.positionsMm.size() / 3);
    const auto edgePoints = static_cast<std::uint32_t>(mesh.edgePointsMm.size() / 3);
    mesh.groups.push_back(
        {.firstIndex = mesh.indices.size(), .indexCount = more.indices.size(), .colour = colour});
    append(mesh.indices, more.indices, points);
    append(mesh.edgeEnds, more.edgeEnds, edgePoints);
    append(mesh.positionsMm, more.positionsMm, 0.0F);
    append(mesh.normals, more.normals, 0.0F);
    append(mesh.edgePointsMm, more.edgePointsMm, 0.0F);
}

/// The side of a cone of radius 5 and height 12 over twelve points whose coordinates are whole.
host::ShapeMesh coneMesh() {
    constexpr std::array<std::array<float, 2>, 12> kRim = {{{5, 0},
                                                            {4, 3},
                                                            {3, 4},
                                                            {0, 5},
                                                            {-3, 4},
                                                            {-4, 3},
                                                            {-5, 0},
                                                            {-4, -3},
                                                            {-3, -4},
                                                            {0, -5},
                                                            {3, -4},
                                                            {4, -3}}};
    constexpr float kOutwards = 12.0F / 13.0F / 5.0F;
    constexpr float kUpwards = 5.0F / 13.0F;
    host::ShapeMesh mesh;
    for (const auto& [x, y] : kRim) {
        for (const std::array<float, 3>& point : {std::array<float, 3>{x, y, 0}, {0, 0, 12}}) {
            mesh.positionsMm.insert(mesh.positionsMm.end(), point.begin(), point.end());
            mesh.normals.insert(mesh.normals.end(), {x * kOutwards, y * kOutwards, kUpwards});
        }
    }
    for (std::uint32_t place = 0; place < kRim.size(); ++place) {
        const std::uint32_t next = (place + 1) % static_cast<std::uint32_t>(kRim.size());
        mesh.indices.insert(mesh.indices.end(), {2 * place, 2 * next, 2 * place + 1});
    }
    return mesh;
}

}  // namespace

host::ShapeMesh bracketMesh() {
    host::ShapeMesh mesh;
    add(mesh, host::boxMesh({0, 0, 0}, {40, 20, 5}), std::nullopt);
    add(mesh, host::boxMesh({0, 0, 5}, {5, 20, 30}), kRed);
    return mesh;
}

host::ShapeMesh glassConeMesh() {
    host::ShapeMesh mesh;
    add(mesh, host::boxMesh({-2, -2, 0}, {2, 2, 3}), kRed);
    add(mesh, coneMesh(), kGlass);
    return mesh;
}

}  // namespace test_support
