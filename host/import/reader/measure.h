#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

#include <array>
#include <optional>

namespace step {

/// The size of a shape, in cm2 and cm3. Solids have a volume, free faces none.
struct Size {
    double area = 0;
    double volume = 0;
};

/// A box along the axes, in cm.
struct Bounds {
    std::array<double, 3> min = {};
    std::array<double, 3> max = {};
};

Size sizeOf(const TopoDS_Shape& shape);

/// The box around the shape, placed (in mm), taken from its exact surfaces and curves and not from
/// a mesh; none when it has no extent that could be found.
std::optional<Bounds> boundsOf(const TopoDS_Shape& shape, const gp_Trsf& placement);

}  // namespace step
