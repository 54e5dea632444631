#pragma once

#include "host/design/design_data.h"

#include <array>
#include <string_view>

namespace host {

/// What a design file calls the kinds of curves, in the order of `SketchCurveKind`; the first is
/// that of a curve of which the file says nothing.
constexpr std::array<std::string_view, 10> kSketchCurveKinds = {"",
                                                                "line",
                                                                "arc",
                                                                "circle",
                                                                "ellipse",
                                                                "elliptical arc",
                                                                "conic curve",
                                                                "fitted spline",
                                                                "fixed spline",
                                                                "control point spline"};

}  // namespace host
