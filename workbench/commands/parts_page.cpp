#include "workbench/commands/parts_page.h"

#include "parts/glb_writer.h"
#include "parts/page_writer.h"
#include "web/page_template.h"

#include <algorithm>
#include <sstream>

namespace workbench {
namespace {

constexpr std::size_t kBytesInKb = 1000;

bool isDrawn(const host::Shape& shape) { return shape.mesh.has_value(); }

std::string modelOf(const host::DesignData& design, const host::ShapeData& meshes) {
    if (std::ranges::none_of(meshes.shapes, isDrawn)) {
        return {};
    }
    std::ostringstream model;
    parts::writeGlb(design, meshes, model);
    return model.str();
}

Remark sizeOf(const host::ShapeData& meshes, std::size_t bytes) {
    std::size_t triangles = 0;
    for (const host::Shape& shape : meshes.shapes) {
        triangles += shape.mesh ? shape.mesh->triangles() : 0;
    }
    return {.kind = "model",
            .text = std::to_string(std::ranges::count_if(meshes.shapes, isDrawn)) + " shapes, " +
                    std::to_string(triangles) + " triangles, " +
                    std::to_string(bytes / kBytesInKb) + " kB"};
}

}  // namespace

std::vector<parts::View> pageViews() {
    return {parts::View::Parts, parts::View::Indented, parts::View::Top, parts::View::All};
}

void writePage(const host::DesignData& design, const host::ShapeData& meshes,
               const std::vector<parts::PartsList>& lists, std::ostream& stream, Remarks& remarks) {
    const std::string model = modelOf(design, meshes);
    remarks.push_back(sizeOf(meshes, model.size()));
    parts::writePage(web::pageTemplate(), design, lists, model, stream);
}

}  // namespace workbench
