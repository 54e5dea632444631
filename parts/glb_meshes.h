#pragma once

#include "parts/glb_streams.h"

#include "host/design/shape_data.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace parts {

/// How much a model has: each mesh counts once, wherever it is used.
struct GlbCounts {
    std::size_t meshes = 0;
    std::size_t triangles = 0;

    bool operator==(const GlbCounts&) const = default;
};

/// The meshes of a model, with their materials and numbers. A shape in other colours is another
/// mesh, which has the same numbers.
class GlbMeshes {
public:
    explicit GlbMeshes(GlbPacking packing) : packing_(packing), streams_(packing) {}

    /// Adds a shape, which has to have triangles or edges. Returns its number.
    std::size_t addShape(const host::ShapeMesh& mesh);

    /// The mesh of a shape in colours, one for each of its groups. The name counts where it is new.
    std::size_t meshOf(std::size_t shape, const std::vector<host::Rgba>& colours,
                       const std::string& name);

    [[nodiscard]] const GlbCounts& counts() const { return counts_; }

    /// Sets the members "meshes", "materials" and what these lead to, where there are any. Returns
    /// the bytes of the first buffer.
    std::string moveTo(nlohmann::json& model) const;

private:
    /// Numbers of accessors.
    struct Surface {
        std::size_t points = 0;
        std::size_t normals = 0;
        std::size_t indices = 0;
    };
    struct Lines {
        std::size_t points = 0;
        std::size_t indices = 0;
    };
    struct Shape {
        std::vector<Surface> surfaces;  ///< one for each group
        std::optional<Lines> lines;
        std::size_t triangles = 0;
    };

    std::size_t materialOf(const host::Rgba& colour);
    nlohmann::json primitivesOf(const Shape& shape, const std::vector<std::size_t>& materials);

    GlbPacking packing_;
    GlbCounts counts_;
    GlbStreams streams_;
    std::vector<Shape> shapes_;
    std::map<std::pair<std::size_t, std::vector<std::size_t>>, std::size_t> numbers_;
    std::map<std::int64_t, std::size_t> materialNumbers_;
    nlohmann::json meshes_ = nlohmann::json::array();
    nlohmann::json materials_ = nlohmann::json::array();
};

}  // namespace parts
