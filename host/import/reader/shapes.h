#pragma once

#include "host/import/reader/assembly.h"

#include <Message_ProgressRange.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>

namespace step {

/// Builds the shapes of an assembly: fills in placements and the shape numbers of its components,
/// and returns the shapes (number 0 is the first). Components with the same shape share a number.
///
/// A component's bodies are its solids and the faces that belong to none of these. Curves and
/// points that are beside them are construction and no bodies; where there are no bodies the curves
/// are kept, to be drawn. What hangs below it by a usage is
/// not its own. Bodies that the file declares and that cannot be built whole are warned of.
TopTools_IndexedMapOfShape buildShapes(Assembly& assembly, const Message_ProgressRange& progress);

/// The bodies in a shape: its solids, and the faces that belong to none of them.
struct Bodies {
    TopoDS_Shape shape;     ///< null when there are none
    std::size_t count = 0;  ///< the solids, the shells outside them, and the faces outside both
};

Bodies bodiesOf(const TopoDS_Shape& shape);

/// The edges in a shape that bound no face; null where there are none.
TopoDS_Shape curvesOf(const TopoDS_Shape& shape);

}  // namespace step
