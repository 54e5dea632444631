#include "parts/glb_writer.h"

#include "parts/glb_meshes.h"
#include "parts/glb_packing.h"
#include "parts/glb_placement.h"
#include "parts/material_colour.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace parts {
namespace {

using nlohmann::json;

constexpr double kMetresPerMillimetre = 0.001;

using Colour = std::optional<host::Rgba>;

/// What an instance says of the colours of all in it.
struct InstancePaint {
    Colour ofAll;
    std::map<std::size_t, host::Rgba> ofBodies;  ///< by the numbers of groups in meshes

    /// What an outer instance says counts more.
    void overrideBy(const InstancePaint& outer) {
        if (outer.ofAll) {
            *this = outer;
            return;
        }
        for (const auto& [body, colour] : outer.ofBodies) {
            ofBodies[body] = colour;
        }
    }

    [[nodiscard]] Colour of(const host::MeshGroup& group) const {
        const auto found = group.body ? ofBodies.find(*group.body) : ofBodies.end();
        return found == ofBodies.end() ? ofAll : Colour(found->second);
    }
};

/// The colours of instances, by the last step that leads to them.
class InstanceColours {
public:
    explicit InstanceColours(const std::vector<host::InstanceColour>& colours) {
        for (const host::InstanceColour& each : colours) {
            if (!each.path.empty()) {
                byLast_[{each.path.back().component, each.path.back().child}].push_back(&each);
            }
        }
    }

    /// Of an instance: those that are said of the longest part of its way.
    [[nodiscard]] InstancePaint of(const std::vector<host::InstanceStep>& steps) const {
        InstancePaint paint;
        const auto found = byLast_.find({steps.back().component, steps.back().child});
        if (found == byLast_.end()) {
            return paint;
        }
        std::map<std::optional<std::size_t>, std::size_t> lengths;  // by body
        for (const host::InstanceColour* const each : found->second) {
            std::size_t& length = lengths[each->body];
            if (each->path.size() <= length || each->path.size() > steps.size() ||
                !std::equal(each->path.rbegin(), each->path.rend(), steps.rbegin())) {
                continue;
            }
            length = each->path.size();
            if (each->body) {
                paint.ofBodies[*each->body] = each->colour;
            } else {
                paint.ofAll = each->colour;
            }
        }
        return paint;
    }

private:
    using Key = std::pair<std::size_t, std::size_t>;
    std::map<Key, std::vector<const host::InstanceColour*>> byLast_;
};

/// Null where nothing of the component itself is to be seen.
const host::ShapeMesh* meshOf(const host::ShapeData& shapes, std::size_t component) {
    const host::Shape* const shape = shapes.of(component);
    const bool isVisible = shape != nullptr && shape->mesh && shape->mesh->isVisible();
    return isVisible ? &*shape->mesh : nullptr;
}

/// Which components have something to be drawn, in them or in what they contain.
class DrawnComponents {
public:
    DrawnComponents(const host::DesignData& design, const host::ShapeData& shapes)
        : design_(design), shapes_(shapes), known_(design.components.size()) {}

    /// As deep as the design, whose levels are limited.
    [[nodiscard]] bool contains(std::size_t component) {
        if (!known_[component]) {
            const auto isDrawn = [this](const host::OccurrenceData& child) {
                return !child.absent && contains(child.component);
            };
            known_[component] =
                meshOf(shapes_, component) != nullptr ||
                std::ranges::any_of(design_.components[component].children, isDrawn);
        }
        return *known_[component];
    }

private:
    const host::DesignData& design_;
    const host::ShapeData& shapes_;
    std::vector<std::optional<bool>> known_;
};

class Model {
public:
    Model(const host::DesignData& design, const host::ShapeData& shapes, const GlbOptions& options)
        : design_(design),
          shapes_(shapes),
          options_(options),
          colours_(shapes.instanceColours),
          drawn_(design, shapes),
          shapeOf_(shapes.shapes.size()),
          meshes_(options.packing) {
        constexpr double kHalf = 0.70710678118654757;
        // Of a drawing in mm with Z up.
        nodes_.push_back(
            {{"name", design.name},
             {"rotation", {-kHalf, 0, 0, kHalf}},
             {"scale", {kMetresPerMillimetre, kMetresPerMillimetre, kMetresPerMillimetre}},
             {"extras", extrasOf(0, "")}});
        fill({.number = 0, .component = 0, .path = "", .paint = {}});
    }

    /// Sets all members. Returns the bytes of the first buffer.
    std::string moveTo(json& model) {
        model = {{"asset", {{"version", "2.0"}, {"generator", "Tarnix"}}},
                 {"scene", 0},
                 {"scenes", {{{"nodes", {0}}}}}};
        model["nodes"] = std::move(nodes_);
        return meshes_.moveTo(model);
    }

    [[nodiscard]] const GlbCounts& counts() const { return meshes_.counts(); }

private:
    struct Node {
        std::size_t number = 0;
        std::size_t component = 0;
        std::string path;
        InstancePaint paint;  ///< where an instance has colours of its own
    };

    [[nodiscard]] json extrasOf(std::size_t component, const std::string& path) const {
        const host::ComponentData& data = design_.components[component];
        if (options_.extras == GlbExtras::PathAlone) {
            return {{"path", path}};
        }
        return {{"path", path}, {"component", data.name}, {"partNumber", data.partNumber}};
    }

    /// The colours of a component's mesh, one for each group.
    [[nodiscard]] std::vector<host::Rgba> coloursOf(const host::ShapeMesh& mesh,
                                                    const Node& node) const {
        const std::optional<host::MaterialData>& material =
            design_.components[node.component].material;
        const bool isStated = material && !material->nameAssumed;
        std::vector<host::Rgba> colours;
        for (const host::MeshGroup& group : mesh.groups) {
            const Colour ofInstance = node.paint.of(group);
            const bool isReplaced = ofInstance && !(group.colour && group.ofFaces);
            const Colour colour = isReplaced ? ofInstance : group.colour;
            colours.push_back(colour ? *colour : colourOfMaterial(isStated ? material->name : ""));
        }
        return colours;
    }

    void setMesh(const Node& node) {
        const host::ShapeMesh* const mesh = meshOf(shapes_, node.component);
        if (mesh == nullptr) {
            return;
        }
        std::optional<std::size_t>& number = shapeOf_[*shapes_.ofComponent[node.component]];
        if (!number) {
            number = meshes_.addShape(*mesh);
        }
        nodes_[node.number]["mesh"] = meshes_.meshOf(*number, coloursOf(*mesh, node),
                                                     design_.components[node.component].name);
    }

    /// What is in a node. As deep as the design, whose levels are limited.
    void fill(const Node& node) {
        setMesh(node);
        json children = json::array();
        const std::vector<host::OccurrenceData>& occurrences =
            design_.components[node.component].children;
        for (std::size_t child = 0; child < occurrences.size(); ++child) {
            if (!occurrences[child].absent && drawn_.contains(occurrences[child].component)) {
                children.push_back(place(node, child));
            }
        }
        if (!children.empty()) {
            nodes_[node.number]["children"] = std::move(children);
        }
    }

    std::size_t place(const Node& parent, std::size_t child) {
        const host::OccurrenceData& occurrence =
            design_.components[parent.component].children[child];
        const std::string name = design_.components[occurrence.component].name + ":" +
                                 std::to_string(occurrence.instance);
        const std::string path = parent.path.empty() ? name : parent.path + "+" + name;
        json node = {{"name", name}, {"extras", extrasOf(occurrence.component, path)}};
        setPlacement(node, occurrence.transform);
        const std::size_t number = nodes_.size();
        nodes_.push_back(std::move(node));
        steps_.push_back({.component = parent.component, .child = child});
        InstancePaint paint = colours_.of(steps_);
        paint.overrideBy(parent.paint);
        fill({.number = number,
              .component = occurrence.component,
              .path = path,
              .paint = std::move(paint)});
        steps_.pop_back();
        return number;
    }

    const host::DesignData& design_;
    const host::ShapeData& shapes_;
    GlbOptions options_;
    InstanceColours colours_;
    DrawnComponents drawn_;
    std::vector<host::InstanceStep> steps_;  ///< from the root to the node that is being filled
    std::vector<std::optional<std::size_t>> shapeOf_;  ///< in the model, of each shape
    GlbMeshes meshes_;
    std::vector<json> nodes_;
};

void writeNumber(std::ostream& stream, std::uint64_t value) {
    constexpr unsigned kBits = 8;
    for (unsigned byte = 0; byte < 4; ++byte) {
        stream.put(static_cast<char>(value >> byte * kBits & 255U));
    }
}

void writeChunk(std::ostream& stream, const char* kind, const std::string& bytes) {
    writeNumber(stream, bytes.size());
    stream.write(kind, 4);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

}  // namespace

GlbCounts writeGlb(const host::DesignData& design, const host::ShapeData& shapes,
                   const GlbOptions& options, std::ostream& stream) {
    GlbOptions possible = options;
    possible.packing = canPack() ? options.packing : GlbPacking::Plain;
    json model;
    Model written(design, shapes, possible);
    const std::string bytes = written.moveTo(model);
    std::string text = model.dump(-1, ' ', /*ensure_ascii=*/false, json::error_handler_t::replace);
    text.resize((text.size() + 3) / 4 * 4, ' ');
    constexpr std::uint64_t kHeader = 12;
    constexpr std::uint64_t kChunkHeader = 8;
    const std::uint64_t binary = bytes.empty() ? 0 : kChunkHeader + bytes.size();
    const std::uint64_t size = kHeader + kChunkHeader + text.size() + binary;
    if (size > std::numeric_limits<std::uint32_t>::max()) {
        throw std::runtime_error("the model is larger than the 4 GB that glTF can hold");
    }
    stream.write("glTF", 4);
    writeNumber(stream, 2);
    writeNumber(stream, size);
    writeChunk(stream, "JSON", text);
    if (binary > 0) {
        writeChunk(stream, "BIN\0", bytes);
    }
    return written.counts();
}

}  // namespace parts
