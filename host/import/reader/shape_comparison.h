#pragma once

#include "host/import/reader/shape_marks.h"

namespace step {

/// Whether a movement takes one shape to the other: no reflection, and no change of size.
///
/// Every movement that takes the frame of one to landmarks of the other is tried. It holds when the
/// faces and the visible edges of the two match one to one in kind, size, place and spread, and
/// points of each curved face are on the face that it matches. How a surface is parametrised, and
/// where a closed one has its seam, makes no difference; how it is divided into faces does.
bool areCongruent(const ShapeMarks& one, const ShapeMarks& other);

}  // namespace step
