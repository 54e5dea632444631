#pragma once

#include "host/base/api_names.h"
#include "host/design/design_data.h"

#include <Core/Geometry.h>

#include <array>
#include <optional>

/// The plain values of geometry, as objects of the public API.
namespace host {

core::Ptr<core::Point3D> makePoint(const std::array<double, 3>& place);

core::Ptr<core::BoundingBox3D> makeBoundingBox(const Box& box);

core::Ptr<core::Matrix3D> makeMatrix(const Transform& transform);

/// What a matrix holds; none for null.
std::optional<Transform> transformOf(const core::Ptr<core::Matrix3D>& matrix);

}  // namespace host
