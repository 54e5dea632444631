#pragma once

#include "host/design/shape_data.h"

#include <GeomAbs_CurveType.hxx>
#include <GeomAbs_SurfaceType.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shape.hxx>
#include <gp_Mat.hxx>
#include <gp_XYZ.hxx>

#include <array>
#include <vector>

/// What a shape is recognised by, wherever it is placed. Lengths are in mm, except for the
/// invariants, which leave the reader.
namespace step {

/// An amount of something in space: where its centre is, and how it spreads around it.
struct Spread {
    double amount = 0;
    gp_XYZ centre;
    gp_Mat second = gp_Mat(0, 0, 0, 0, 0, 0, 0, 0, 0);  ///< the integral of r times r transposed
};

struct FaceMark {
    GeomAbs_SurfaceType kind = GeomAbs_OtherSurface;
    Spread area;
    TopoDS_Face face;
};

/// An edge that can be seen: no seam of a closed surface and none without length.
struct EdgeMark {
    GeomAbs_CurveType kind = GeomAbs_OtherCurve;
    Spread length;
};

/// What a point of the shape is to it.
enum class LandmarkKind { Face, Edge, Corner, Axis, Vertex };

/// A point that a movement has to take to a point of the same sort.
struct Landmark {
    LandmarkKind kind = LandmarkKind::Vertex;
    int type = 0;       ///< of the surface or curve; the number of a principal axis
    double amount = 0;  ///< area or length
    gp_XYZ offset;      ///< from the shape's centre
};

struct ShapeMarks {
    host::ShapeInvariants invariants;
    gp_XYZ centre;  ///< of the volume; of the area where nothing is enclosed
    double radius = 0;
    std::vector<FaceMark> faces;  ///< by the x of their centres
    std::vector<EdgeMark> edges;  ///< by the x of their centres
    std::vector<Landmark> landmarks;

    /// Landmarks in different directions, of which the shape has as few others as possible; one
    /// where all lie on a line through the centre, none where all are there.
    std::vector<Landmark> frame;
};

/// Throws a `Standard_Failure` or a `std::runtime_error` for a shape that cannot be measured.
ShapeMarks marksOf(const TopoDS_Shape& shape);

/// How far points of equal shapes may be apart.
double positionTolerance(const ShapeMarks& shape);

}  // namespace step
