#pragma once

#include "host/import/reader/colours.h"

#include "host/design/shape_data.h"

#include <TopoDS_Shape.hxx>

#include <cstddef>
#include <optional>
#include <string>

namespace step {

/// How close triangles are to a shape, and what drawing it may take.
struct TessellationLimits {
    double deflection = 0.001;  ///< of the shape's diagonal
    double angle = 0.35;        ///< between neighbouring segments, in radians
    std::size_t triangles = 200'000;
    double seconds = 60;  ///< for the fine attempt; half of it again for the coarse one

    bool operator==(const TessellationLimits&) const = default;
};

/// What came of a shape that is to be drawn.
struct Tessellation {
    std::optional<host::ShapeMesh> mesh;
    std::string problem;     ///< why there is none, only a box, or a part of it; empty otherwise
    bool isByLimit = false;  ///< with more time or memory it would be another
};

/// Triangles and feature edges of a shape, which is not changed. The deflection follows its size;
/// beyond a limit it is drawn more coarsely, else as its box.
Tessellation tessellate(const TopoDS_Shape& shape, const Paint& paint,
                        const TessellationLimits& limits);

/// The edges of a shape that has no faces, as lines. Beyond the limit of triangles, here of lines,
/// it is its box.
Tessellation tessellateCurves(const TopoDS_Shape& curves, const TessellationLimits& limits);

}  // namespace step
