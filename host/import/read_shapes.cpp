#include "host/import/read_shapes.h"

#include "host/base/base64.h"
#include "host/import/reader_answer.h"
#include "host/import/step_geometry.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <exception>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace host {
namespace {

using nlohmann::json;

ShapeInvariants invariantsFrom(const json& answer) {
    return {.volume = answer.at("volume"),
            .area = answer.at("area"),
            .secondMoments = answer.at("secondMoments"),
            .thirdMoments = answer.at("thirdMoments"),
            .solids = answer.at("solids"),
            .shells = answer.at("shells"),
            .faces = answer.at("faces"),
            .edges = answer.at("edges"),
            .vertices = answer.at("vertices"),
            .faceAreas = answer.at("faceAreas")};
}

template <class Number>
std::vector<Number> unpacked(const json& text) {
    const std::optional<std::string> bytes = fromBase64(text.get_ref<const std::string&>());
    if (!bytes || bytes->size() % sizeof(Number) != 0) {
        throw std::runtime_error("the reader's mesh is damaged");
    }
    std::vector<Number> numbers(bytes->size() / sizeof(Number));
    // An empty vector may have no memory at all.
    if (!numbers.empty()) {
        std::memcpy(numbers.data(), bytes->data(), bytes->size());
    }
    return numbers;
}

std::optional<Rgba> colourFrom(const json& cells) {
    if (cells.is_null()) {
        return std::nullopt;
    }
    return Rgba{
        .red = cells.at(0), .green = cells.at(1), .blue = cells.at(2), .alpha = cells.at(3)};
}

/// The number of a body, where an answer names one.
std::optional<std::size_t> bodyFrom(const json& answer) {
    const auto found = answer.find("body");
    return found == answer.end() ? std::nullopt : std::optional(found->get<std::size_t>());
}

bool areFinite(const std::vector<float>& values) {
    return std::all_of(values.begin(), values.end(),
                       [](float value) { return std::isfinite(value); });
}

/// The reader is a program that a file may have brought down.
void check(const ShapeMesh& mesh) {
    const std::size_t points = mesh.positionsMm.size() / 3;
    const std::size_t edgePoints = mesh.edgePointsMm.size() / 3;
    std::size_t grouped = 0;
    for (const MeshGroup& group : mesh.groups) {
        grouped += group.indexCount;
    }
    if (mesh.normals.size() != mesh.positionsMm.size() || grouped != mesh.indices.size() ||
        mesh.indices.size() % 3 != 0 || mesh.detail < MeshDetail::Fine ||
        mesh.detail > MeshDetail::Box ||
        !std::is_sorted(mesh.edgeEnds.begin(), mesh.edgeEnds.end()) ||
        (!mesh.edgeEnds.empty() && mesh.edgeEnds.back() > edgePoints) ||
        !areFinite(mesh.positionsMm) || !areFinite(mesh.normals) || !areFinite(mesh.edgePointsMm) ||
        std::any_of(mesh.indices.begin(), mesh.indices.end(),
                    [points](std::uint32_t index) { return index >= points; })) {
        throw std::runtime_error("the reader's mesh is damaged");
    }
}

ShapeMesh meshFrom(const json& answer) {
    ShapeMesh mesh;
    mesh.detail = static_cast<MeshDetail>(answer.at("detail").get<int>());
    mesh.positionsMm = unpacked<float>(answer.at("positionsMm"));
    mesh.normals = unpacked<float>(answer.at("normals"));
    mesh.indices = unpacked<std::uint32_t>(answer.at("indices"));
    mesh.edgePointsMm = unpacked<float>(answer.at("edgePointsMm"));
    mesh.edgeEnds = unpacked<std::uint32_t>(answer.at("edgeEnds"));
    std::size_t first = 0;
    for (const json& group : answer.at("groups")) {
        const std::size_t count = group.at("indexCount");
        mesh.groups.push_back({.firstIndex = first,
                               .indexCount = count,
                               .colour = colourFrom(group.at("colour")),
                               .ofFaces = group.value("ofFaces", false),
                               .body = bodyFrom(group)});
        first += count;
    }
    check(mesh);
    return mesh;
}

/// The shapes of one design and the reader that holds them.
class ShapesReader {
public:
    ShapesReader(const DesignData& design, const ShapeRequest& request, ShapeData& data)
        : design_(design), request_(request), data_(data) {
        data.ofComponent.resize(design.components.size());
        std::map<const Geometry*, std::size_t> numbers;
        for (std::size_t component = 0; component < design.components.size(); ++component) {
            auto* const geometry =
                dynamic_cast<StepGeometry*>(design.components[component].geometry.get());
            if (geometry == nullptr) {
                continue;
            }
            const auto [found, isNew] = numbers.try_emplace(geometry, geometries_.size());
            if (isNew) {
                geometries_.push_back(geometry);
            }
            data.ofComponent[component] = found->second;
        }
        data.shapes.resize(geometries_.size());
    }

    /// What is known stays known where the reader does not survive the shapes.
    void measure() {
        for (StepGeometry* const geometry : geometries_) {
            comeToNext();
            try {
                geometry->volume();
            } catch (const std::runtime_error&) {
                // It is thrown again where the volume is asked for.
            }
        }
    }

    void readClasses() {
        ask("invariants", "", "compared",
            [](Shape& shape, const json& answer) { shape.invariants = invariantsFrom(answer); });
        ask("class", "", "compared", [](Shape& shape, const json& answer) {
            shape.shapeClass = answer.at("class").get<int>();
        });
    }

    void readMeshes() {
        const std::string limits =
            " " + json(request_.deflection).dump() + " " + json(request_.angle).dump() + " " +
            std::to_string(request_.maximumTriangles) + " " + json(request_.seconds).dump();
        ask("mesh", limits, "drawn", takeMesh);
        readCurves(limits);
        readInstances();
    }

private:
    void comeToNext() const {
        if (request_.beforeEach) {
            request_.beforeEach();
        }
    }

    template <class Take>
    void ask(const std::string& verb, const std::string& words, const std::string& purpose,
             const Take& take) {
        for (std::size_t at = 0; at < geometries_.size(); ++at) {
            const StepGeometry& geometry = *geometries_[at];
            comeToNext();
            askFor(data_.shapes[at], geometry.reader(),
                   verb + " " + std::to_string(geometry.shape()) + words, purpose, take);
        }
    }

    template <class Take>
    static void askFor(Shape& shape, ReaderConnection& reader, const std::string& request,
                       const std::string& purpose, const Take& take) {
        try {
            take(shape, answerOf(reader, request));
        } catch (const std::exception& failure) {
            note(shape, "cannot be " + purpose + ": " + failure.what());
        }
    }

    static void takeMesh(Shape& shape, const json& answer) {
        if (answer.contains("problem")) {
            note(shape, answer["problem"]);
        }
        if (answer.contains("indices")) {
            shape.mesh = meshFrom(answer);
        }
    }

    void readCurves(const std::string& limits) {
        for (std::size_t component = 0; component < design_.components.size(); ++component) {
            const auto* const curves =
                dynamic_cast<StepCurves*>(design_.components[component].curves.get());
            if (curves == nullptr || data_.ofComponent[component]) {
                continue;
            }
            data_.ofComponent[component] = data_.shapes.size();
            Shape& shape = data_.shapes.emplace_back();
            comeToNext();
            askFor(shape, curves->reader(), "curves " + std::to_string(curves->number()) + limits,
                   "drawn", takeMesh);
        }
    }

    /// Without them instances have the colours of their parts: nothing that is worth a failure.
    void readInstances() {
        if (geometries_.empty()) {
            return;
        }
        try {
            const json answer = answerOf(geometries_.front()->reader(), "instances");
            // Several roots got a component above them, which the reader does not know.
            const std::size_t first =
                design_.components.size() - answer.value("components", design_.components.size());
            for (const json& each : answer.value("instances", json::array())) {
                data_.instanceColours.push_back(instanceFrom(each, first));
            }
        } catch (const std::exception&) {
            data_.instanceColours.clear();
        }
    }

    static InstanceColour instanceFrom(const json& answer, std::size_t firstComponent) {
        InstanceColour result = {.path = {},
                                 .colour = colourFrom(answer.at("colour")).value(),
                                 .body = bodyFrom(answer)};
        for (const json& step : answer.at("path")) {
            result.path.push_back({.component = step.at(0).get<std::size_t>() + firstComponent,
                                   .child = step.at(1).get<std::size_t>()});
        }
        return result;
    }

    static void note(Shape& shape, const std::string& problem) {
        if (shape.problem != problem) {
            shape.problem += (shape.problem.empty() ? "" : "; ") + problem;
        }
    }

    const DesignData& design_;
    const ShapeRequest& request_;
    ShapeData& data_;
    std::vector<StepGeometry*> geometries_;
};

}  // namespace

ShapeData readShapes(const DesignData& design, const ShapeRequest& request) {
    ShapeData data;
    ShapesReader reader(design, request, data);
    if (request.measures) {
        reader.measure();
    }
    if (request.classes) {
        reader.readClasses();
    }
    if (request.meshes) {
        reader.readMeshes();
    }
    return data;
}

}  // namespace host
