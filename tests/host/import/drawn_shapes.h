#pragma once

#include <TopoDS_Shape.hxx>
#include <gp_Trsf.hxx>

#include <initializer_list>
#include <random>
#include <vector>

/// Solids for tests of what shapes are like, in mm.
namespace shapes {

TopoDS_Shape block(double x, double y, double z);

/// A block of 40 x 30 x 10 with a step along one edge, and a hole of radius 3 through it at (x, y).
/// It has no symmetry.
TopoDS_Shape stepBlock(double x, double y);

/// A block of 40 x 30 x 10 with two holes side by side: equal to its mirror image.
TopoDS_Shape symmetricBlock();

/// A disc of radius 50 with eight holes at radius 30: two squares, one turned by so many degrees.
TopoDS_Shape disc(double degrees);

/// A square tube that ends in a helical cut-like twist: a surface that is no plane.
TopoDS_Shape twistedBar(double degrees);

/// A profile with steps and a fillet, turned around an axis; it begins at so many degrees.
TopoDS_Shape turnedPart(double degrees);

/// A cube with a spherical hollow in one of its faces, of the volume of a cube of side 10.
TopoDS_Shape hollowCube();

/// A cylinder with an elliptic section.
TopoDS_Shape ellipticCylinder();

TopoDS_Shape mirrored(const TopoDS_Shape& shape);
TopoDS_Shape scaled(const TopoDS_Shape& shape, double factor);

/// Placed anywhere, with geometry of its own.
TopoDS_Shape placed(const TopoDS_Shape& shape, std::mt19937& random);

/// The number of the class of each shape.
std::vector<int> classes(const std::vector<TopoDS_Shape>& shapes);

}  // namespace shapes
