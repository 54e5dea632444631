#pragma once

#include "host/design/shape_data.h"

namespace host {

/// By how much the invariants of one shape may differ when it is placed, written and read again:
/// relative for volumes, areas and moments.
inline constexpr double kShapeTolerance = 1e-6;

/// Whether two shapes can be equal up to a movement, as far as their invariants say.
///
/// Shapes that are not are different. Shapes that are may still differ: in the same design only an
/// equal class says that they do not.
bool canBeEqual(const ShapeInvariants& one, const ShapeInvariants& other);

}  // namespace host
