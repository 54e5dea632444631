#pragma once

#include "host/design/shape_data.h"

#include <nlohmann/json.hpp>

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace parts {

/// The meshes of a model, with what they are made of: materials, accessors, and the bytes that
/// these lead to.
class GlbMeshes {
public:
    /// Appends a mesh; it has to have triangles or edges.
    void add(const host::ShapeMesh& mesh, const std::string& name);

    [[nodiscard]] std::size_t size() const { return meshes_.size(); }
    [[nodiscard]] const std::string& bytes() const { return bytes_; }

    /// Sets the members "meshes", "materials", "accessors" and "bufferViews", where there are any.
    void addTo(nlohmann::json& model) const;

private:
    template <class Number>
    std::size_t addView(const std::vector<Number>& numbers, int target);
    std::size_t addPoints(const std::vector<float>& points, bool isBounded);
    std::size_t addIndices(const std::vector<std::uint32_t>& indices);
    std::size_t materialOf(const std::optional<host::Rgba>& colour);
    nlohmann::json edgesOf(const host::ShapeMesh& mesh);

    std::string bytes_;
    std::map<std::int64_t, std::size_t> materialNumbers_;
    nlohmann::json meshes_ = nlohmann::json::array();
    nlohmann::json materials_ = nlohmann::json::array();
    nlohmann::json accessors_ = nlohmann::json::array();
    nlohmann::json views_ = nlohmann::json::array();
};

}  // namespace parts
