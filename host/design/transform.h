#pragma once

#include "host/design/design_data.h"

#include <array>
#include <optional>

/// Calculation with placements and boxes.
namespace host {

/// The placement of something that lies by `inner` in something that lies by `outer`.
Transform operator*(const Transform& outer, const Transform& inner);

/// The placement that takes `transform` back; none for one that flattens space.
std::optional<Transform> inverse(const Transform& transform);

/// A shift.
Transform translation(double x, double y, double z);

/// Whether the placement takes each axis onto an axis, in either direction and unscaled. It then
/// takes a box that lies close around a body to one that lies close as well.
bool keepsAxes(const Transform& transform);

/// The box around a placed box.
Box placed(const Box& box, const Transform& placement);

/// Makes `sum` hold `box` as well.
void include(std::optional<Box>& sum, const std::optional<Box>& box);

}  // namespace host
