#pragma once

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <cstddef>
#include <functional>

namespace host {

/// What to work out of shapes.
struct ShapeRequest {
    bool classes = false;  ///< invariants, and which shapes are equal
    bool meshes = false;

    /// Measure them first: later a crash would take what lists need.
    bool measures = true;

    /// How close meshes are to their shapes: the distance as a part of the shape's diagonal, and
    /// the angle between neighbouring segments, in radians.
    double deflection = 0.001;
    double angle = 0.35;

    /// Of a mesh. A shape that needs more is drawn more coarsely, else as its box.
    std::size_t maximumTriangles = 200'000;
    double seconds = 60;  ///< the same holds for one that takes longer

    /// Called before each question to the reader. What it throws ends the reading and passes on.
    std::function<void()> beforeEach = {};
};

/// The shapes of a design that `readDesign` returned, by the reader that still holds them: the file
/// is not read again. Every shape is worked out once, however many components share it.
///
/// The time limit of the reading holds for each shape as well. A shape that fails has its reason in
/// `Shape::problem`; nothing is thrown. It may be called by any thread. A reader that crashes takes
/// with it the shapes not yet worked out and later measurements, so all geometries are measured
/// first, unless nobody needs that. A design file, a tree that was read without shapes, and any
/// file on Windows have no shapes.
///
/// Meshes come with the colours that instances have of their own, and with the curves of components
/// without bodies.
ShapeData readShapes(const DesignData& design, const ShapeRequest& request);

}  // namespace host
