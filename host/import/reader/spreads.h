#pragma once

#include "host/import/reader/shape_marks.h"

#include <TopoDS_Edge.hxx>

#include <array>
#include <cstddef>
#include <vector>

/// Integrals over faces, edges and solids, in mm.
namespace step {

Spread areaSpread(const TopoDS_Face& face);

Spread lengthSpread(const TopoDS_Edge& edge);

/// The solids of a shape together. One that the file turned inside out counts like any other.
struct SolidSpreads {
    std::size_t count = 0;
    Spread whole;
};

SolidSpreads solidSpreads(const TopoDS_Shape& shape);

Spread sumOf(const std::vector<Spread>& parts);

struct PrincipalAxes {
    std::array<double, 3> moments = {};  ///< ascending
    std::array<gp_XYZ, 3> axes;
};

PrincipalAxes principalAxes(const gp_Mat& second);

/// See `host::ShapeInvariants::thirdMoments`; `surface` is the sum of the areas.
std::array<double, 4> thirdMomentsOf(const std::vector<Spread>& areas, const Spread& surface);

}  // namespace step
