#include "parts/glb_writer.h"

#include "parts/glb_meshes.h"

#include <nlohmann/json.hpp>

#include <array>
#include <cstdint>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace parts {
namespace {

using nlohmann::json;

constexpr double kMillimetresPerCentimetre = 10;
constexpr double kMetresPerMillimetre = 0.001;

/// Column by column, in mm; nothing for a part that stays where it is.
json matrixOf(const host::Transform& placement) {
    if (placement == host::Transform()) {
        return {};
    }
    json cells = json::array();
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            const bool isShift = column == 3 && row < 3;
            cells.push_back(placement.cells[4 * row + column] *
                            (isShift ? kMillimetresPerCentimetre : 1));
        }
    }
    return cells;
}

class Model {
public:
    Model(const host::DesignData& design, const host::ShapeData& shapes)
        : design_(design), shapes_(shapes), meshOf_(shapes.shapes.size()) {
        addMeshes();
        constexpr double kHalf = 0.70710678118654757;
        // Of a drawing in mm with Z up.
        nodes_.push_back(
            {{"name", design.name},
             {"rotation", {-kHalf, 0, 0, kHalf}},
             {"scale", {kMetresPerMillimetre, kMetresPerMillimetre, kMetresPerMillimetre}},
             {"extras", extrasOf(0, "")}});
        fill(0, 0, "");
    }

    [[nodiscard]] json description() const {
        json model = {{"asset", {{"version", "2.0"}, {"generator", "Tarnix"}}},
                      {"scene", 0},
                      {"scenes", {{{"nodes", {0}}}}},
                      {"nodes", nodes_}};
        meshes_.addTo(model);
        return model;
    }

    [[nodiscard]] const std::string& bytes() const { return meshes_.bytes(); }

private:
    /// Each shape that can be seen, under the name of the first component that has it.
    void addMeshes() {
        for (std::size_t component = 0; component < shapes_.ofComponent.size(); ++component) {
            const std::optional<std::size_t> shape = shapes_.ofComponent[component];
            if (!shape || meshOf_[*shape] || !shapes_.shapes[*shape].mesh) {
                continue;
            }
            const host::ShapeMesh& mesh = *shapes_.shapes[*shape].mesh;
            if (!mesh.indices.empty() || !mesh.edgeEnds.empty()) {
                meshOf_[*shape] = meshes_.size();
                meshes_.add(mesh, design_.components[component].name);
            }
        }
    }

    [[nodiscard]] json extrasOf(std::size_t component, const std::string& path) const {
        const host::ComponentData& data = design_.components[component];
        return {{"path", path}, {"component", data.name}, {"partNumber", data.partNumber}};
    }

    /// What is in a node. As deep as the design, whose levels are limited.
    void fill(std::size_t node, std::size_t component, const std::string& path) {
        const std::optional<std::size_t> shape =
            component < shapes_.ofComponent.size() ? shapes_.ofComponent[component] : std::nullopt;
        if (shape && meshOf_[*shape]) {
            nodes_[node]["mesh"] = *meshOf_[*shape];
        }
        json children = json::array();
        for (const host::OccurrenceData& child : design_.components[component].children) {
            if (!child.absent) {
                children.push_back(place(child, path));
            }
        }
        if (!children.empty()) {
            nodes_[node]["children"] = std::move(children);
        }
    }

    std::size_t place(const host::OccurrenceData& occurrence, const std::string& parent) {
        const std::string name = design_.components[occurrence.component].name + ":" +
                                 std::to_string(occurrence.instance);
        const std::string path = parent.empty() ? name : parent + "+" + name;
        json node = {{"name", name}, {"extras", extrasOf(occurrence.component, path)}};
        if (json matrix = matrixOf(occurrence.transform); !matrix.is_null()) {
            node["matrix"] = std::move(matrix);
        }
        const std::size_t number = nodes_.size();
        nodes_.push_back(std::move(node));
        fill(number, occurrence.component, path);
        return number;
    }

    const host::DesignData& design_;
    const host::ShapeData& shapes_;
    std::vector<std::optional<std::size_t>> meshOf_;  ///< of each shape
    GlbMeshes meshes_;
    std::vector<json> nodes_;
};

void writeNumber(std::ostream& stream, std::uint64_t value) {
    constexpr unsigned kByte = 8;
    for (unsigned byte = 0; byte < 4; ++byte) {
        stream.put(static_cast<char>(value >> byte * kByte & 255U));
    }
}

void writeChunk(std::ostream& stream, const char* kind, const std::string& bytes) {
    writeNumber(stream, bytes.size());
    stream.write(kind, 4);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

void writeGlb(const host::DesignData& design, const host::ShapeData& shapes, std::ostream& stream) {
    const Model model(design, shapes);
    std::string text =
        model.description().dump(-1, ' ', /*ensure_ascii=*/false, json::error_handler_t::replace);
    text.resize((text.size() + 3) / 4 * 4, ' ');
    constexpr std::uint64_t kHeader = 12;
    constexpr std::uint64_t kChunkHeader = 8;
    const std::uint64_t binary = model.bytes().empty() ? 0 : kChunkHeader + model.bytes().size();
    const std::uint64_t size = kHeader + kChunkHeader + text.size() + binary;
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        throw std::runtime_error("the model is larger than the 4 GB that glTF can hold");
    }
    stream.write("glTF", 4);
    writeNumber(stream, 2);
    writeNumber(stream, size);
    writeChunk(stream, "JSON", text);
    if (binary > 0) {
        writeChunk(stream, "BIN\0", model.bytes());
    }
}

}  // namespace parts
