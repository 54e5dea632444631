#include "parts/glb_meshes.h"

#include "parts/glb_packing.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <unordered_map>

namespace parts {
namespace {

using nlohmann::json;

constexpr int kLines = 1;  // the standard's number

constexpr host::Rgba kEdge = {.red = 45, .green = 52, .blue = 62, .alpha = 255};
constexpr double kLargestByte = 255;

/// Colours of files are sRGB; those of glTF are proportional to light. Six digits are more than a
/// byte can tell apart.
double linear(std::uint8_t value) {
    const double share = value / kLargestByte;
    const double light = share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    return std::round(light * 1e6) / 1e6;
}

json materialFrom(const host::Rgba& colour) {
    json material = {{"pbrMetallicRoughness",
                      {{"baseColorFactor",
                        {linear(colour.red), linear(colour.green), linear(colour.blue),
                         std::round(colour.alpha / kLargestByte * 1e6) / 1e6}},
                       {"metallicFactor", 0},
                       {"roughnessFactor", 0.7}}},
                     {"doubleSided", true}};
    if (colour.alpha < kLargestByte) {
        material["alphaMode"] = "BLEND";
    }
    return material;
}

/// The triangles of one group, with corners of their own.
struct GroupSurface {
    std::vector<float> points = {};
    std::vector<float> normals = {};
    std::vector<std::uint8_t> packedNormals = {};
    std::vector<std::uint32_t> indices = {};
};

GroupSurface surfaceOf(const host::ShapeMesh& mesh, const std::vector<float>& points,
                       const host::MeshGroup& group) {
    GroupSurface surface;
    std::unordered_map<std::uint32_t, std::uint32_t> numbers;
    for (std::size_t at = group.firstIndex; at < group.firstIndex + group.indexCount; ++at) {
        const std::uint32_t from = mesh.indices[at];
        const auto next = static_cast<std::uint32_t>(numbers.size());
        const auto [found, isNew] = numbers.try_emplace(from, next);
        for (std::size_t axis = 0; isNew && axis < 3; ++axis) {
            surface.points.push_back(points[std::size_t{3} * from + axis]);
            surface.normals.push_back(mesh.normals[std::size_t{3} * from + axis]);
        }
        surface.indices.push_back(found->second);
    }
    return surface;
}

GroupSurface packed(const GroupSurface& surface) {
    PackedSurface result = packSurface(surface.points, surface.normals, surface.indices);
    return {.points = std::move(result.points),
            .packedNormals = std::move(result.normals),
            .indices = std::move(result.indices)};
}

/// Points by their places: feature edges run along the corners of triangles.
class PointTable {
public:
    explicit PointTable(std::vector<float>& points) : points_(points) {
        for (std::size_t at = 0; at < points.size(); at += 3) {
            numbers_.try_emplace(keyOf(&points[at]), static_cast<std::uint32_t>(at / 3));
        }
    }

    /// The number of a point, which is appended where there is none.
    std::uint32_t numberOf(const float* point) {
        const auto next = static_cast<std::uint32_t>(points_.size() / 3);
        const auto [found, isNew] = numbers_.try_emplace(keyOf(point), next);
        if (isNew) {
            points_.insert(points_.end(), point, point + 3);
        }
        return found->second;
    }

private:
    using Key = std::array<std::uint32_t, 3>;

    struct Hash {
        std::size_t operator()(const Key& key) const {
            constexpr std::size_t kPrime = 1'000'003;
            return (key[0] * kPrime + key[1]) * kPrime + key[2];
        }
    };

    /// The two zeros are one.
    static Key keyOf(const float* point) {
        return {std::bit_cast<std::uint32_t>(point[0] + 0.0F),
                std::bit_cast<std::uint32_t>(point[1] + 0.0F),
                std::bit_cast<std::uint32_t>(point[2] + 0.0F)};
    }

    std::vector<float>& points_;
    std::unordered_map<Key, std::uint32_t, Hash> numbers_;
};

/// Two for each line. Points that no triangle has are appended to `points`.
std::vector<std::uint32_t> linesOf(const host::ShapeMesh& mesh, const std::vector<float>& edges,
                                   std::vector<float>& points) {
    std::vector<std::uint32_t> indices;
    PointTable table(points);
    std::size_t point = 0;
    for (const std::size_t end : mesh.edgeEnds) {
        for (++point; point < end; ++point) {
            indices.push_back(table.numberOf(&edges[3 * (point - 1)]));
            indices.push_back(table.numberOf(&edges[3 * point]));
        }
    }
    return indices;
}

std::vector<float> allPoints(const host::ShapeMesh& mesh) {
    std::vector<float> points = mesh.positionsMm;
    points.insert(points.end(), mesh.edgePointsMm.begin(), mesh.edgePointsMm.end());
    return points;
}

/// A shape as it is written.
struct PreparedShape {
    GlbGrid grid;
    std::vector<GroupSurface> surfaces = {};
    std::vector<float> points = {};  ///< of the surfaces one after the other, then of lines alone
    std::size_t surfacePoints = 0;
    std::vector<std::uint32_t> lines = {};
};

PreparedShape prepared(const host::ShapeMesh& mesh, GlbPacking packing) {
    const bool isPacked = packing == GlbPacking::Compressed;
    PreparedShape shape = {.grid = GlbGrid(allPoints(mesh))};
    const auto placed = [&](const std::vector<float>& points) {
        return isPacked ? shape.grid.rounded(points) : points;
    };
    const std::vector<float> corners = placed(mesh.positionsMm);
    for (const host::MeshGroup& group : mesh.groups) {
        const GroupSurface surface = surfaceOf(mesh, corners, group);
        shape.surfaces.push_back(isPacked ? packed(surface) : surface);
        const std::vector<float>& points = shape.surfaces.back().points;
        shape.points.insert(shape.points.end(), points.begin(), points.end());
    }
    shape.surfacePoints = shape.points.size() / 3;
    shape.lines = linesOf(mesh, placed(mesh.edgePointsMm), shape.points);
    return shape;
}

}  // namespace

std::size_t GlbMeshes::addShape(const host::ShapeMesh& mesh) {
    const PreparedShape shape = prepared(mesh, packing_);
    const std::size_t points = shape.points.size() / 3;
    streams_.addPoints(shape.points, shape.grid);
    Shape numbers;
    numbers.triangles = mesh.triangles();
    std::size_t first = 0;
    for (const GroupSurface& surface : shape.surfaces) {
        const std::size_t count = surface.points.size() / 3;
        numbers.surfaces.push_back({.points = streams_.pointRange(shape.points, first, count),
                                    .normals = surface.packedNormals.empty()
                                                   ? streams_.addNormals(surface.normals)
                                                   : streams_.addNormals(surface.packedNormals),
                                    .indices = streams_.addTriangles(surface.indices, count)});
        first += count;
    }
    if (!shape.lines.empty()) {
        const bool isShared = numbers.surfaces.size() == 1 && shape.surfacePoints == points;
        numbers.lines = {.points = isShared ? numbers.surfaces.front().points
                                            : streams_.pointRange(shape.points, 0, points),
                         .indices = streams_.addLines(shape.lines, points)};
    }
    shapes_.push_back(std::move(numbers));
    return shapes_.size() - 1;
}

std::size_t GlbMeshes::materialOf(const host::Rgba& colour) {
    const std::int64_t key = (std::int64_t{colour.red} << 24U) |
                             (std::int64_t{colour.green} << 16U) |
                             (std::int64_t{colour.blue} << 8U) | colour.alpha;
    const auto [found, isNew] = materialNumbers_.try_emplace(key, materials_.size());
    if (isNew) {
        materials_.push_back(materialFrom(colour));
    }
    return found->second;
}

json GlbMeshes::primitivesOf(const Shape& shape, const std::vector<std::size_t>& materials) {
    json primitives = json::array();
    for (std::size_t group = 0; group < shape.surfaces.size(); ++group) {
        const Surface& surface = shape.surfaces[group];
        primitives.push_back(
            {{"attributes", {{"POSITION", surface.points}, {"NORMAL", surface.normals}}},
             {"indices", surface.indices},
             {"material", materials[group]}});
    }
    if (shape.lines) {
        primitives.push_back({{"mode", kLines},
                              {"attributes", {{"POSITION", shape.lines->points}}},
                              {"indices", shape.lines->indices},
                              {"material", materialOf(kEdge)}});
    }
    return primitives;
}

std::size_t GlbMeshes::meshOf(std::size_t shape, const std::vector<host::Rgba>& colours,
                              const std::string& name) {
    std::vector<std::size_t> materials;
    materials.reserve(colours.size());
    for (const host::Rgba& colour : colours) {
        materials.push_back(materialOf(colour));
    }
    const auto [found, isNew] = numbers_.try_emplace({shape, materials}, meshes_.size());
    if (isNew) {
        ++counts_.meshes;
        counts_.triangles += shapes_[shape].triangles;
        meshes_.push_back(
            {{"name", name}, {"primitives", primitivesOf(shapes_[shape], materials)}});
    }
    return found->second;
}

std::string GlbMeshes::moveTo(json& model) const {
    // The standard has no empty lists.
    if (!meshes_.empty()) {
        model["meshes"] = meshes_;
        model["materials"] = materials_;
    }
    return streams_.moveTo(model);
}

}  // namespace parts
