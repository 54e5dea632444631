#pragma once

#include "host/base/documented_points.h"

namespace test_support {

/// The points at which the add-in's tests have the host do as is documented, by the variable
/// TARNIX_TEST_HOST_POINTS: "all", or names with commas between them; none where it is not set.
/// Throws a `std::invalid_argument` for a name that no point has.
host::DocumentedPoints documentedPointsOfTests();

}  // namespace test_support
