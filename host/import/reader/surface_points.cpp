#include "host/import/reader/surface_points.h"

#include <BRepAdaptor_Surface.hxx>
#include <Extrema_ExtPS.hxx>

#include <algorithm>
#include <array>

namespace step {
namespace {

/// Where points are taken, as fractions of a face's parameters.
constexpr std::array<std::array<double, 2>, 4> kPlaces = {
    {{0.5, 0.5}, {0.2, 0.3}, {0.85, 0.35}, {0.4, 0.9}}};

gp_Pnt pointAt(const BRepAdaptor_Surface& surface, const std::array<double, 2>& place) {
    const double u = surface.FirstUParameter();
    const double v = surface.FirstVParameter();
    return surface.Value(u + place[0] * (surface.LastUParameter() - u),
                         v + place[1] * (surface.LastVParameter() - v));
}

/// The distance of the nearest point, which may be beyond the face.
bool isOn(const gp_Pnt& point, const BRepAdaptor_Surface& surface, double tolerance) {
    constexpr double kParameters = 1e-9;
    const Extrema_ExtPS nearest(point, surface, kParameters, kParameters);
    if (!nearest.IsDone()) {
        return false;
    }
    for (int at = 1; at <= nearest.NbExt(); ++at) {
        if (nearest.SquareDistance(at) <= tolerance * tolerance) {
            return true;
        }
    }
    return false;
}

}  // namespace

bool pointsAreOn(const TopoDS_Face& face, const std::function<gp_XYZ(const gp_XYZ&)>& move,
                 const TopoDS_Face& other, double tolerance) {
    const BRepAdaptor_Surface surface(face);
    if (surface.GetType() == GeomAbs_Plane) {
        return true;  // its area's centre and spread leave no other plane
    }
    const BRepAdaptor_Surface target(other);
    // What was placed several times is parametrised alike, which saves looking for the point.
    return std::all_of(kPlaces.begin(), kPlaces.end(), [&](const std::array<double, 2>& place) {
        const gp_Pnt point(move(pointAt(surface, place).XYZ()));
        return point.Distance(pointAt(target, place)) <= tolerance ||
               isOn(point, target, tolerance);
    });
}

}  // namespace step
