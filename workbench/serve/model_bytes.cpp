#include "workbench/serve/model_bytes.h"

#include "parts/glb_writer.h"

#include <algorithm>
#include <sstream>

namespace workbench::serve {
namespace {

bool isDrawn(const host::ShapeData& shapes) {
    return std::ranges::any_of(
        shapes.shapes, [](const host::Shape& each) { return each.mesh && each.mesh->isVisible(); });
}

std::string written(const ModelSource& source) {
    if (!source.shapes || !isDrawn(*source.shapes)) {
        return "";
    }
    std::ostringstream stream;
    parts::writeGlb(
        *source.design, *source.shapes,
        {.packing = parts::GlbPacking::Compressed, .extras = parts::GlbExtras::PathAlone}, stream);
    return std::move(stream).str();
}

}  // namespace

std::shared_ptr<const std::string> ModelBytes::of(const ModelSource& source) {
    const std::lock_guard lock(mutex_);
    if (!bytes_ || revision_ != source.revision) {
        bytes_ = std::make_shared<const std::string>(written(source));
        revision_ = source.revision;
    }
    return bytes_;
}

}  // namespace workbench::serve
