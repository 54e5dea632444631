#include "workbench/serve/model_bytes.h"

#include "workbench/serve/protocol_error.h"

#include "host/import/read_shapes.h"
#include "parts/glb_writer.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <utility>

namespace workbench::serve {
namespace {

bool isDrawn(const host::ShapeData& shapes) {
    return std::ranges::any_of(
        shapes.shapes, [](const host::Shape& each) { return each.mesh && each.mesh->isVisible(); });
}

std::string written(const host::DesignData& design, const host::ShapeData& shapes) {
    if (!isDrawn(shapes)) {
        return "";
    }
    std::ostringstream stream;
    parts::writeGlb(
        design, shapes,
        {.packing = parts::GlbPacking::Compressed, .extras = parts::GlbExtras::PathAlone}, stream);
    return std::move(stream).str();
}

/// What the log says of shapes that have a problem. Throws where there are no others.
std::vector<std::string> problemsOf(const host::ShapeData& shapes) {
    std::map<std::string, int> problems;
    bool anyDrawn = false;
    for (const host::Shape& each : shapes.shapes) {
        anyDrawn = anyDrawn || each.mesh;
        if (!each.problem.empty()) {
            ++problems[each.problem];
        }
    }
    if (!anyDrawn && !problems.empty()) {
        throw ProtocolError(kFailed, "no shape could be drawn: " + problems.begin()->first);
    }
    std::vector<std::string> lines;
    for (const auto& [problem, count] : problems) {
        lines.push_back("shapes that are drawn in part or not at all: " + std::to_string(count) +
                        " (" + problem + ")");
    }
    return lines;
}

}  // namespace

std::shared_ptr<const std::string> ModelBytes::of(const ModelSource& source, const Warn& warn) {
    for (std::uint64_t newest = newestDocument_;
         newest < source.document &&
         !newestDocument_.compare_exchange_weak(newest, source.document);) {
    }
    const std::lock_guard lock(mutex_);
    if (document_ != source.document) {
        read(source, warn);
    }
    if (!bytes_ || revision_ != source.revision) {
        bytes_ = std::make_shared<const std::string>(written(*source.design, *shapes_));
        revision_ = source.revision;
    }
    return bytes_;
}

void ModelBytes::read(const ModelSource& source, const Warn& warn) {
    constexpr double kDeflection = 0.002;
    constexpr double kAngle = 0.5;
    constexpr double kSeconds = 10;  // so long the end of the program may have to wait
    host::ShapeRequest request = {.meshes = true};
    request.deflection = kDeflection;
    request.angle = kAngle;
    request.seconds = kSeconds;
    request.beforeEach = [this, &source] { checkIsWanted(source); };
    auto shapes =
        std::make_shared<const host::ShapeData>(host::readShapes(*source.design, request));
    // Where this throws nothing is kept, so the next request tries again.
    const std::vector<std::string> problems = problemsOf(*shapes);
    if (!problems.empty()) {
        warn(problems);
    }
    shapes_ = std::move(shapes);
    document_ = source.document;
    bytes_ = nullptr;
}

void ModelBytes::checkIsWanted(const ModelSource& source) const {
    if (ended_) {
        throw ProtocolError(kUnavailable, "the program is ending");
    }
    if (newestDocument_ != source.document) {
        throw ProtocolError(kConflict, "another document is shown by now");
    }
}

}  // namespace workbench::serve
