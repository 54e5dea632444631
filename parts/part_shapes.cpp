#include "parts/part_shapes.h"

#include "parts/png.h"
#include "parts/thumbnail.h"

#include <algorithm>

namespace parts {

PartShapes partShapesOf(const host::ShapeData& shapes, Pictures pictures) {
    PartShapes result;
    if (std::none_of(shapes.shapes.begin(), shapes.shapes.end(),
                     [](const host::Shape& shape) { return shape.shapeClass.has_value(); })) {
        return result;
    }
    for (std::size_t component = 0; component < shapes.ofComponent.size(); ++component) {
        result.classOf.push_back(shapes.classOf(component));
        const host::Shape* const shape = shapes.of(component);
        if (pictures == Pictures::Drawn && result.classOf.back() && shape->mesh &&
            !result.pictures.contains(*result.classOf.back())) {
            result.pictures[*result.classOf.back()] =
                std::make_shared<const std::string>(pngOf(drawThumbnail(*shape->mesh, {})));
        }
    }
    return result;
}

}  // namespace parts
