#pragma once

#include <TopoDS_Face.hxx>
#include <gp_XYZ.hxx>

#include <functional>

namespace step {

/// Whether points of a face's surface, once moved, are on the surface of another face.
bool pointsAreOn(const TopoDS_Face& face, const std::function<gp_XYZ(const gp_XYZ&)>& move,
                 const TopoDS_Face& other, double tolerance);

}  // namespace step
