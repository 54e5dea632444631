#pragma once

#include "host/design/shape_data.h"

/// Shapes to draw, of coordinates that are the same on every machine.
namespace test_support {

/// An angle of two boxes, the standing one red, with edges.
host::ShapeMesh bracketMesh();

/// A cone of glass with a smooth side, over a box that is seen through it.
host::ShapeMesh glassConeMesh();

}  // namespace test_support
