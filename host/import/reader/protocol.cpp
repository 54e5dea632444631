#include "host/import/reader/protocol.h"

#include "host/import/reader/failure_text.h"
#include "host/import/reader/instance_colours.h"
#include "host/import/reader/lengths.h"
#include "host/import/reader/measurements.h"
#include "host/import/reader/shape_classes.h"
#include "host/import/reader/shape_json.h"
#include "host/import/reader/tessellation.h"

#include <iostream>
#include <optional>
#include <sstream>
#include <unordered_map>

namespace step {
namespace {

using nlohmann::json;

/// The first three rows of the matrix, translation in cm.
json cellsOf(const gp_Trsf& placement) {
    json cells = json::array();
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 4; ++column) {
            const double scale = column == 4 ? kMillimetresPerCentimetre : 1;
            cells.push_back(placement.Value(row, column) / scale + 0.0);  // no negative zero
        }
    }
    return cells;
}

gp_Trsf placementOf(std::istream& cells) {
    std::array<double, 12> values = {};
    for (double& value : values) {
        cells >> value;
    }
    for (const std::size_t column : {3U, 7U, 11U}) {
        values[column] *= kMillimetresPerCentimetre;
    }
    gp_Trsf placement;
    placement.SetValues(values[0], values[1], values[2], values[3], values[4], values[5], values[6],
                        values[7], values[8], values[9], values[10], values[11]);
    return placement;
}

/// The components that the roots lead to, as they are first met from top to bottom.
struct TreeOrder {
    explicit TreeOrder(const Assembly& assembly) {
        for (const std::size_t root : assembly.roots) {
            note(assembly, root);
        }
    }

    std::vector<std::size_t> components;
    std::unordered_map<std::size_t, std::size_t> index;

private:
    // As deep as the tree, which has been checked.
    void note(const Assembly& assembly, std::size_t component) {
        if (!index.try_emplace(component, components.size()).second) {
            return;
        }
        components.push_back(component);
        for (const Use& use : assembly.components[component].uses) {
            note(assembly, use.component);
        }
    }
};

json componentJson(const Component& component,
                   const std::unordered_map<std::size_t, std::size_t>& index) {
    json uses = json::array();
    for (const Use& use : component.uses) {
        uses.push_back(
            {{"component", index.at(use.component)}, {"placement", cellsOf(use.placement)}});
    }
    json result = {
        {"id", component.id}, {"name", component.name},   {"description", component.description},
        {"uses", uses},       {"shape", component.shape}, {"bodies", component.bodyCount}};
    if (component.curves >= 0) {
        result["curves"] = component.curves;
    }
    if (component.material) {
        result["material"] = component.material->name;
        if (component.material->density) {
            result["density"] = *component.material->density;
        }
    }
    return result;
}

/// What is worked out of the shapes, on request.
class Answers {
public:
    Answers(const TopTools_IndexedMapOfShape& shapes, const DrawingSource& drawing)
        : shapes_(shapes), drawing_(drawing), measurements_(shapes), marks_(shapes) {}

    json answer(const std::string& request) {
        std::istringstream words(request);
        std::string verb;
        int shape = -1;
        words >> verb >> shape;
        if (verb == "instances") {
            return drawing_.instances();
        }
        if (verb == "curves") {
            return curvesOf(shape, words);
        }
        if (shape < 0 || shape >= shapes_.Extent()) {
            return {{"error", "no such shape"}};
        }
        const auto number = static_cast<std::size_t>(shape);
        if (verb == "measure") {
            return sizeOf(number);
        }
        if (verb == "invariants") {
            return invariantsOf(number);
        }
        if (verb == "class") {
            return classOf(number);
        }
        if (verb == "mesh") {
            return meshOf(number, words);
        }
        const std::optional<Bounds> bounds = boundsOf(shapes_(shape + 1), placementOf(words));
        return bounds ? json{{"min", bounds->min}, {"max", bounds->max}} : json::object();
    }

private:
    json sizeOf(std::size_t shape) {
        const Measurement& measured = measurements_.of(shape);
        if (!measured.failure.empty()) {
            return {{"error", measured.failure}};
        }
        return {{"area", measured.size.area}, {"volume", measured.size.volume}};
    }

    json invariantsOf(std::size_t shape) {
        const MarksResult& result = marks_.of(shape);
        return result.failure.text.empty() ? step::jsonOf(result.marks.invariants)
                                           : json{{"error", result.failure.text}};
    }

    json classOf(std::size_t shape) {
        if (classes_.empty()) {
            classes_ = classesOf(marks_);
        }
        if (!classes_[shape]) {
            return {{"error", marks_.of(shape).failure.text}};
        }
        json answer = {{"class", *classes_[shape]}};
        // The numbers of all depend on which shapes could be looked at.
        if (areMarksByLimit()) {
            answer["again"] = true;
        }
        return answer;
    }

    bool areMarksByLimit() {
        for (std::size_t shape = 0; shape < marks_.size(); ++shape) {
            if (marks_.of(shape).failure.isByLimit) {
                return true;
            }
        }
        return false;
    }

    json meshOf(std::size_t shape, std::istream& words) {
        const TessellationLimits limits = limitsOf(words);
        if (!tessellations_ || limits != limits_) {
            limits_ = limits;
            tessellations_.reset();  // with its threads
            // Where it fails, meshes are without colours.
            const bool isByLimit = failureIn([this] { paint_ = drawing_.paint(); }).isByLimit;
            tessellations_.emplace(static_cast<std::size_t>(shapes_.Extent()),
                                   [this, limits, isByLimit](std::size_t number) {
                                       Tessellation result = tessellate(
                                           shapes_(static_cast<int>(number) + 1), paint_, limits);
                                       result.isByLimit = result.isByLimit || isByLimit;
                                       return result;
                                   });
        }
        return step::jsonOf(tessellations_->take(shape));
    }

    static TessellationLimits limitsOf(std::istream& words) {
        TessellationLimits limits;
        words >> limits.deflection >> limits.angle >> limits.triangles >> limits.seconds;
        return limits;
    }

    json curvesOf(int number, std::istream& words) {
        if (number < 0 || static_cast<std::size_t>(number) >= drawing_.curves.size()) {
            return {{"error", "no such curves"}};
        }
        return step::jsonOf(
            tessellateCurves(drawing_.curves[static_cast<std::size_t>(number)], limitsOf(words)));
    }

    const TopTools_IndexedMapOfShape& shapes_;
    const DrawingSource& drawing_;
    Paint paint_;
    TessellationLimits limits_;
    Measurements measurements_;
    AllMarks marks_;
    std::vector<std::optional<int>> classes_;
    std::optional<ParallelResults<Tessellation>> tessellations_;
};

}  // namespace

void sendLine(const json& line) {
    // A file's name may be no UTF-8; a text that cannot be shown must not end the answer.
    std::cout << line.dump(-1, ' ', false, json::error_handler_t::replace) << '\n' << std::flush;
}

void sendStage(const char* stage) { sendLine({{"progress", {{"stage", stage}, {"fraction", 0}}}}); }

void sendWarning(const Warning& warning) {
    json members = {{"code", warning.code}, {"text", warning.text}};
    if (!warning.component.empty()) {
        members["component"] = warning.component;
    }
    if (warning.value) {
        members["value"] = *warning.value;
        members["unit"] = warning.unit;
    }
    sendLine({{"warning", members}});
}

json designOf(const Assembly& assembly) {
    const TreeOrder order(assembly);
    json roots = json::array();
    for (const std::size_t root : assembly.roots) {
        roots.push_back(order.index.at(root));
    }
    json components = json::array();
    for (const std::size_t component : order.components) {
        components.push_back(componentJson(assembly.components[component], order.index));
    }
    json files = json::array();
    for (const auto& file : assembly.files) {
        files.push_back(file->path.string());
    }
    return {{"unit", assembly.files.front()->unit()},
            {"files", files},
            {"roots", roots},
            {"components", components}};
}

json instancesOf(const Assembly& assembly) {
    const TreeOrder order(assembly);
    json instances = json::array();
    for (const InstanceColour& each : instanceColoursOf(assembly).colours) {
        json path = json::array();
        for (const UseIndex& use : each.path) {
            if (const auto found = order.index.find(use.component); found != order.index.end()) {
                path.push_back({found->second, use.use});
            }
        }
        // What no root leads to is not in the design.
        if (path.size() == each.path.size()) {
            instances.push_back({{"path", path}, {"colour", jsonOf(each.colour)}});
            if (each.body) {
                instances.back()["body"] = *each.body;
            }
        }
    }
    return {{"components", order.components.size()}, {"instances", instances}};
}

void answerRequests(std::istream& requests, const TopTools_IndexedMapOfShape& shapes,
                    const DrawingSource& drawing) {
    Answers answers(shapes, drawing);
    for (std::string request; std::getline(requests, request);) {
        json line;
        const std::string failure = failureIn([&] { line = answers.answer(request); }).text;
        sendLine(failure.empty() ? line : json{{"error", failure}});
    }
}

}  // namespace step
