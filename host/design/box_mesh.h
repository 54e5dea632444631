#pragma once

#include "host/design/shape_data.h"

#include <array>

namespace host {

/// A box along the axes, in mm, as twelve triangles and twelve feature edges.
ShapeMesh boxMesh(const std::array<float, 3>& minimumMm, const std::array<float, 3>& maximumMm);

}  // namespace host
