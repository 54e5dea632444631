#pragma once

#include "samples/step_text.h"

#include <string>
#include <vector>

namespace samples {

struct Point2 {
    double x = 0;
    double y = 0;
};

/// A closed line in a plane: a circle, or a polygon that runs counterclockwise. In mm.
struct Contour {
    std::vector<Point2> corners;  ///< empty for a circle
    Point2 centre;
    double radius = 0;
};

Contour circle(double radius, Point2 centre = {});
Contour rectangle(double width, double depth, Point2 centre = {});
Contour hexagon(double acrossFlats);

/// The outline of a gear with straight flanks; `sign` is -1 for the inside of a ring gear.
Contour teeth(int count, double module, double sign = 1);

struct Layer {
    Contour outline;
    double height = 0;
};

/// A body of prisms on top of each other along z, the first on z = 0, with holes through all.
/// Of two outlines that meet, one is inside the other.
struct Solid {
    std::vector<Layer> layers;
    std::vector<Contour> holes;
};

/// Writes the solid as a boundary representation; returns the reference of its MANIFOLD_SOLID_BREP.
std::string addSolid(StepText& text, const Solid& solid);

/// A placement: where the origin comes to lie, and whereto z and x point.
struct Placement {
    std::vector<double> origin = {0, 0, 0};
    std::vector<double> z = {0, 0, 1};
    std::vector<double> x = {1, 0, 0};
};

std::string addPlacement(StepText& text, const Placement& placement);

}  // namespace samples
