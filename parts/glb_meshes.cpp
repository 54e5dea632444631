#include "parts/glb_meshes.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace parts {
namespace {

using nlohmann::json;

// Numbers of the standard.
constexpr int kFloat = 5126;
constexpr int kUnsignedInt = 5125;
constexpr int kVertices = 34962;
constexpr int kIndices = 34963;
constexpr int kLines = 1;

constexpr host::Rgba kPlain = {.red = 186, .green = 193, .blue = 203, .alpha = 255};
constexpr host::Rgba kEdge = {.red = 45, .green = 52, .blue = 62, .alpha = 255};
constexpr double kLargestByte = 255;

/// Colours of files are sRGB; those of glTF are proportional to light.
double linear(std::uint8_t value) {
    const double share = value / kLargestByte;
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

json materialFrom(const host::Rgba& colour) {
    json material = {{"pbrMetallicRoughness",
                      {{"baseColorFactor",
                        {linear(colour.red), linear(colour.green), linear(colour.blue),
                         colour.alpha / kLargestByte}},
                       {"metallicFactor", 0},
                       {"roughnessFactor", 0.7}}},
                     {"doubleSided", true}};
    if (colour.alpha < kLargestByte) {
        material["alphaMode"] = "BLEND";
    }
    return material;
}

json boundOf(const std::vector<float>& points, bool isUpper) {
    json bound = json::array();
    for (std::size_t axis = 0; axis < 3; ++axis) {
        float value = points[axis];
        for (std::size_t at = axis; at < points.size(); at += 3) {
            value = isUpper ? std::max(value, points[at]) : std::min(value, points[at]);
        }
        bound.push_back(value);
    }
    return bound;
}

}  // namespace

template <class Number>
std::size_t GlbMeshes::addView(const std::vector<Number>& numbers, int target) {
    static_assert(sizeof(Number) == 4 && std::endian::native == std::endian::little);
    const std::size_t size = numbers.size() * sizeof(Number);
    views_.push_back(
        {{"buffer", 0}, {"byteOffset", bytes_.size()}, {"byteLength", size}, {"target", target}});
    bytes_.append(reinterpret_cast<const char*>(numbers.data()), size);
    return views_.size() - 1;
}

std::size_t GlbMeshes::addPoints(const std::vector<float>& points, bool isBounded) {
    json accessor = {{"bufferView", addView(points, kVertices)},
                     {"componentType", kFloat},
                     {"count", points.size() / 3},
                     {"type", "VEC3"}};
    if (isBounded) {
        accessor["min"] = boundOf(points, /*isUpper=*/false);
        accessor["max"] = boundOf(points, /*isUpper=*/true);
    }
    accessors_.push_back(std::move(accessor));
    return accessors_.size() - 1;
}

std::size_t GlbMeshes::addIndices(const std::vector<std::uint32_t>& indices) {
    accessors_.push_back({{"bufferView", addView(indices, kIndices)},
                          {"componentType", kUnsignedInt},
                          {"count", indices.size()},
                          {"type", "SCALAR"}});
    return accessors_.size() - 1;
}

std::size_t GlbMeshes::materialOf(const std::optional<host::Rgba>& colour) {
    const host::Rgba chosen = colour.value_or(kPlain);
    const std::int64_t key = (std::int64_t{chosen.red} << 24U) |
                             (std::int64_t{chosen.green} << 16U) |
                             (std::int64_t{chosen.blue} << 8U) | chosen.alpha;
    const auto [found, isNew] = materialNumbers_.try_emplace(key, materials_.size());
    if (isNew) {
        materials_.push_back(materialFrom(chosen));
    }
    return found->second;
}

json GlbMeshes::edgesOf(const host::ShapeMesh& mesh) {
    std::vector<std::uint32_t> indices;
    std::uint32_t point = 0;
    for (const std::uint32_t end : mesh.edgeEnds) {
        for (++point; point < end; ++point) {
            indices.push_back(point - 1);
            indices.push_back(point);
        }
    }
    return {{"mode", kLines},
            {"attributes", {{"POSITION", addPoints(mesh.edgePointsMm, /*isBounded=*/true)}}},
            {"indices", addIndices(indices)},
            {"material", materialOf(kEdge)}};
}

void GlbMeshes::add(const host::ShapeMesh& mesh, const std::string& name) {
    json primitives = json::array();
    if (!mesh.indices.empty()) {
        const json attributes = {{"POSITION", addPoints(mesh.positionsMm, /*isBounded=*/true)},
                                 {"NORMAL", addPoints(mesh.normals, /*isBounded=*/false)}};
        for (const host::MeshGroup& group : mesh.groups) {
            const auto first = mesh.indices.begin() + static_cast<std::ptrdiff_t>(group.firstIndex);
            primitives.push_back(
                {{"attributes", attributes},
                 {"indices",
                  addIndices({first, first + static_cast<std::ptrdiff_t>(group.indexCount)})},
                 {"material", materialOf(group.colour)}});
        }
    }
    if (!mesh.edgeEnds.empty()) {
        primitives.push_back(edgesOf(mesh));
    }
    meshes_.push_back({{"name", name}, {"primitives", primitives}});
}

void GlbMeshes::addTo(json& model) const {
    // The standard has no empty lists.
    if (!meshes_.empty()) {
        model["meshes"] = meshes_;
        model["materials"] = materials_;
        model["accessors"] = accessors_;
        model["bufferViews"] = views_;
        model["buffers"] = {{{"byteLength", bytes_.size()}}};
    }
}

}  // namespace parts
