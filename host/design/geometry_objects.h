#pragma once

#include "host/design/design_data.h"

#include <Core/Geometry.h>

#include <optional>

/// The plain values of geometry, as the host hands them out.
namespace host {

adsk::core::Ptr<adsk::core::BoundingBox3D> makeBoundingBox(const Box& box);

adsk::core::Ptr<adsk::core::Matrix3D> makeMatrix(const Transform& transform);

/// What a matrix holds; none for null.
std::optional<Transform> transformOf(const adsk::core::Ptr<adsk::core::Matrix3D>& matrix);

}  // namespace host
