#pragma once

#include "host/import/reader/colours.h"

#include "host/design/shape_data.h"

#include <TopoDS_Shape.hxx>

#include <cstddef>
#include <optional>
#include <string>

namespace step {

/// What drawing a shape may take.
struct TessellationLimits {
    std::size_t triangles = 200'000;
    double seconds = 60;  ///< for the fine attempt; half of it again for the coarse one
};

/// What came of a shape that is to be drawn.
struct Tessellation {
    std::optional<host::ShapeMesh> mesh;
    std::string problem;     ///< why there is none, only a box, or a part of it; empty otherwise
    bool isByLimit = false;  ///< with more time or memory it would be another
};

/// Triangles and feature edges of a shape, which is not changed. The deflection follows its size;
/// beyond a limit it is drawn more coarsely, else as its box.
Tessellation tessellate(const TopoDS_Shape& shape, const Colours& colours,
                        const TessellationLimits& limits);

}  // namespace step
