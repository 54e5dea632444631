#include "workbench/commands/part_shapes.h"

#include "workbench/cli/exit_code.h"
#include "workbench/cli/quiet.h"
#include "workbench/output/display_text.h"

#include "parts/glb_writer.h"
#include "parts/parts_list.h"

#include "host/import/read_shapes.h"

#include <algorithm>
#include <iostream>

namespace workbench {
namespace {

bool showsPictures(const parts::PartsRequest& request) {
    const std::vector<parts::Column> columns = parts::columnsOf(request);
    return std::ranges::any_of(columns, [](const parts::Column& column) {
        return column.field == parts::Field::Thumbnail;
    });
}

void reportProblems(const host::DesignData& design, const host::ShapeData& shapes) {
    for (std::size_t component = 0; component < design.components.size(); ++component) {
        const host::Shape* const shape = shapes.of(component);
        if (shape != nullptr && !shape->problem.empty() && !isQuiet()) {
            std::cerr << "warning: "
                      << printable("\"" + design.components[component].name +
                                   "\": " + shape->problem)
                      << "\n";
        }
    }
}

}  // namespace

parts::PartShapes readPartShapes(const host::DesignData& design,
                                 const parts::PartsRequest& request) {
    const bool isDrawn = showsPictures(request);
    const host::ShapeData shapes = host::readShapes(design, {.classes = true, .meshes = isDrawn});
    reportProblems(design, shapes);
    return parts::partShapesOf(shapes, isDrawn ? parts::Pictures::Drawn : parts::Pictures::None);
}

void writeModel(const host::DesignData& design, const std::string& file, std::ostream& stream) {
    const host::ShapeData shapes = host::readShapes(design, {.meshes = true});
    if (shapes.shapes.empty()) {
        throw Failure(ExitCode::BadInput,
                      file + ": has no shapes to make a model of; open a STEP or IGES file");
    }
    reportProblems(design, shapes);
    parts::writeGlb(design, shapes, stream);
}

host::ShapeData readMeshes(const host::DesignData& design) {
    host::ShapeData shapes = host::readShapes(design, {.meshes = true});
    reportProblems(design, shapes);
    return shapes;
}

}  // namespace workbench
