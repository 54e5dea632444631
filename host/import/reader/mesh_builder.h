#pragma once

#include "host/import/reader/colours.h"

#include "host/design/shape_data.h"

#include <TopoDS_Shape.hxx>

#include <cstddef>

namespace step {

struct BuiltMesh {
    host::ShapeMesh mesh;
    std::size_t facesWithout = 0;  ///< faces without triangles
};

/// Collects the triangles that the faces of a shape have, and its feature edges: those where it
/// bends or ends. `original` is the shape of which `meshed` is a copy; the paint is of its parts.
/// Throws a `std::runtime_error` where a point is nowhere.
BuiltMesh meshFrom(const TopoDS_Shape& original, const TopoDS_Shape& meshed, const Paint& paint);

}  // namespace step
