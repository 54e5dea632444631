#pragma once

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <cstddef>

namespace host {

/// What to work out of shapes.
struct ShapeRequest {
    bool classes = false;  ///< invariants, and which shapes are equal
    bool meshes = false;

    /// Of a mesh. A shape that needs more is drawn more coarsely, else as its box.
    std::size_t maximumTriangles = 200'000;
    double seconds = 60;  ///< the same holds for one that takes longer
};

/// The shapes of a design that `readDesign` returned, by the reader that still holds them: the file
/// is not read again. Every shape is worked out once, however many components share it.
///
/// The time limit of the reading holds for each shape as well. A shape that fails has its reason in
/// `Shape::problem`; nothing is thrown. A reader that crashes takes with it the shapes not yet
/// worked out and later measurements, so all geometries are measured first. A design file, a tree
/// that was read without shapes, and any file on Windows have no shapes.
ShapeData readShapes(const DesignData& design, const ShapeRequest& request);

}  // namespace host
