#include "workbench/commands/part_shapes.h"

#include "parts/parts_list.h"

#include "host/import/read_shapes.h"

#include <algorithm>

namespace workbench {
namespace {

bool showsPictures(const parts::PartsRequest& request) {
    const std::vector<parts::Column> columns = parts::columnsOf(request);
    return std::ranges::any_of(columns, [](const parts::Column& column) {
        return column.field == parts::Field::Thumbnail;
    });
}

}  // namespace

parts::PartShapes readPartShapes(const host::DesignData& design, const parts::PartsRequest& request,
                                 Remarks& remarks) {
    const bool isDrawn = showsPictures(request);
    const host::ShapeData shapes = host::readShapes(design, {.classes = true, .meshes = isDrawn});
    addProblems(remarks, design, shapes);
    return parts::partShapesOf(shapes, isDrawn ? parts::Pictures::Drawn : parts::Pictures::None);
}

}  // namespace workbench
