#include "tests/host/import/drawn_shapes.h"

#include "host/import/reader/shape_classes.h"

#include <BRepAlgoAPI_Cut.hxx>
#include <BRepBuilderAPI_MakeEdge.hxx>
#include <BRepBuilderAPI_MakeFace.hxx>
#include <BRepBuilderAPI_MakePolygon.hxx>
#include <BRepBuilderAPI_MakeWire.hxx>
#include <BRepBuilderAPI_Transform.hxx>
#include <BRepOffsetAPI_ThruSections.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepPrimAPI_MakeCylinder.hxx>
#include <BRepPrimAPI_MakePrism.hxx>
#include <BRepPrimAPI_MakeRevol.hxx>
#include <BRepPrimAPI_MakeSphere.hxx>
#include <GC_MakeArcOfCircle.hxx>
#include <TopoDS.hxx>
#include <gp_Elips.hxx>
#include <gp_Quaternion.hxx>

#include <cmath>
#include <numbers>

namespace shapes {
namespace {

double radians(double degrees) { return degrees * std::numbers::pi / 180; }

TopoDS_Shape rodAt(double x, double y, double radius, double height) {
    return BRepPrimAPI_MakeCylinder(gp_Ax2(gp_Pnt(x, y, -1), gp::DZ()), radius, height + 2).Shape();
}

TopoDS_Shape cut(const TopoDS_Shape& from, const TopoDS_Shape& tool) {
    return BRepAlgoAPI_Cut(from, tool).Shape();
}

/// A square in a plane of its own height, turned around the axis.
TopoDS_Wire squareAt(double height, double degrees) {
    BRepBuilderAPI_MakePolygon square;
    for (int corner = 0; corner < 4; ++corner) {
        const double angle = radians(degrees + 90.0 * corner);
        square.Add(gp_Pnt(5 * std::cos(angle), 5 * std::sin(angle), height));
    }
    square.Close();
    return square.Wire();
}

}  // namespace

TopoDS_Shape block(double x, double y, double z) { return BRepPrimAPI_MakeBox(x, y, z).Shape(); }

TopoDS_Shape stepBlock(double x, double y) {
    const TopoDS_Shape step = BRepPrimAPI_MakeBox(gp_Pnt(30, 20, 5), 20, 20, 20).Shape();
    return cut(cut(block(40, 30, 10), step), rodAt(x, y, 3, 10));
}

TopoDS_Shape symmetricBlock() {
    return cut(cut(block(40, 30, 10), rodAt(10, 15, 3, 10)), rodAt(30, 15, 3, 10));
}

TopoDS_Shape disc(double degrees) {
    TopoDS_Shape shape = BRepPrimAPI_MakeCylinder(50, 5).Shape();
    for (int hole = 0; hole < 8; ++hole) {
        const double angle = radians(90.0 * (hole % 4) + (hole < 4 ? 0 : degrees));
        shape = cut(shape, rodAt(30 * std::cos(angle), 30 * std::sin(angle), 3, 5));
    }
    return shape;
}

TopoDS_Shape twistedBar(double degrees) {
    BRepOffsetAPI_ThruSections bar(/*isSolid=*/Standard_True, /*ruled=*/Standard_False);
    for (int section = 0; section <= 3; ++section) {
        bar.AddWire(squareAt(10.0 * section, degrees * section / 3));
    }
    return bar.Shape();
}

TopoDS_Shape turnedPart(double degrees) {
    const gp_Pnt top(4, 0, 10);
    const gp_Pnt middle(4 + 3 / std::numbers::sqrt2, 0, 7 + 3 / std::numbers::sqrt2);
    const gp_Pnt low(7, 0, 7);
    BRepBuilderAPI_MakeWire profile;
    profile.Add(BRepBuilderAPI_MakeEdge(gp_Pnt(2, 0, 0), gp_Pnt(2, 0, 10)));
    profile.Add(BRepBuilderAPI_MakeEdge(gp_Pnt(2, 0, 10), top));
    profile.Add(BRepBuilderAPI_MakeEdge(GC_MakeArcOfCircle(top, middle, low).Value()));
    profile.Add(BRepBuilderAPI_MakeEdge(low, gp_Pnt(7, 0, 0)));
    profile.Add(BRepBuilderAPI_MakeEdge(gp_Pnt(7, 0, 0), gp_Pnt(2, 0, 0)));
    gp_Trsf turn;
    turn.SetRotation(gp::OZ(), radians(degrees));
    const TopoDS_Shape start =
        BRepBuilderAPI_Transform(BRepBuilderAPI_MakeFace(profile.Wire()).Shape(), turn).Shape();
    return BRepPrimAPI_MakeRevol(start, gp::OZ()).Shape();
}

TopoDS_Shape hollowCube() {
    // Half a sphere of radius 3 is missing.
    const double side = std::cbrt(1000 + 2.0 / 3 * std::numbers::pi * 27);
    const gp_Pnt middle(side / 2, side / 2, side);
    return cut(block(side, side, side), BRepPrimAPI_MakeSphere(middle, 3).Shape());
}

TopoDS_Shape ellipticCylinder() {
    const TopoDS_Edge ellipse = BRepBuilderAPI_MakeEdge(gp_Elips(gp::XOY(), 8, 5));
    const TopoDS_Face base = BRepBuilderAPI_MakeFace(BRepBuilderAPI_MakeWire(ellipse).Wire());
    return BRepPrimAPI_MakePrism(base, gp_Vec(0, 0, 12)).Shape();
}

TopoDS_Shape mirrored(const TopoDS_Shape& shape) {
    gp_Trsf mirror;
    mirror.SetMirror(gp::XOY());
    return BRepBuilderAPI_Transform(shape, mirror, /*theCopyGeom=*/Standard_True).Shape();
}

TopoDS_Shape scaled(const TopoDS_Shape& shape, double factor) {
    gp_Trsf scale;
    scale.SetScale(gp::Origin(), factor);
    return BRepBuilderAPI_Transform(shape, scale, /*theCopyGeom=*/Standard_True).Shape();
}

TopoDS_Shape placed(const TopoDS_Shape& shape, std::mt19937& random) {
    std::normal_distribution<double> part;
    std::uniform_real_distribution<double> distance(-500, 500);
    gp_Quaternion turn(part(random), part(random), part(random), part(random));
    turn.Normalize();
    gp_Trsf placement;
    placement.SetRotation(turn);
    placement.SetTranslationPart({distance(random), distance(random), distance(random)});
    return BRepBuilderAPI_Transform(shape, placement, /*theCopyGeom=*/Standard_True).Shape();
}

std::vector<int> classes(const std::vector<TopoDS_Shape>& shapes) {
    TopTools_IndexedMapOfShape map;
    for (const TopoDS_Shape& shape : shapes) {
        map.Add(shape);
    }
    step::AllMarks marks(map);
    std::vector<int> numbers;
    for (const std::optional<int>& number : step::classesOf(marks)) {
        numbers.push_back(number.value_or(-1));
    }
    return numbers;
}

}  // namespace shapes
