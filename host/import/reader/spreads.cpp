#include "host/import/reader/spreads.h"

#include <BRepGProp.hxx>
#include <BRep_Tool.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <TopoDS.hxx>
#include <math_Jacobi.hxx>
#include <math_Matrix.hxx>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace step {
namespace {

gp_Mat outer(const gp_XYZ& one, const gp_XYZ& other) {
    return {one.X() * other.X(), one.X() * other.Y(), one.X() * other.Z(),
            one.Y() * other.X(), one.Y() * other.Y(), one.Y() * other.Z(),
            one.Z() * other.X(), one.Z() * other.Y(), one.Z() * other.Z()};
}

/// A point on the shape: integrals about the origin lose digits far away from it.
gp_Pnt pointOn(const TopoDS_Shape& shape) {
    const TopExp_Explorer vertices(shape, TopAbs_VERTEX);
    return vertices.More() ? BRep_Tool::Pnt(TopoDS::Vertex(vertices.Current())) : gp_Pnt();
}

Spread spreadOf(const GProp_GProps& properties) {
    const double sign = properties.Mass() < 0 ? -1 : 1;
    const gp_Mat inertia = properties.MatrixOfInertia() * sign;
    gp_Mat second;
    second.SetIdentity();
    second *= (inertia(1, 1) + inertia(2, 2) + inertia(3, 3)) / 2;
    return {.amount = std::abs(properties.Mass()),
            .centre = properties.CentreOfMass().XYZ(),
            .second = second - inertia};
}

/// The sum of the cubes of the offsets, by its three indices.
class ThirdMoments {
public:
    void add(double amount, const gp_XYZ& offset) {
        for (int i = 1; i <= 3; ++i) {
            for (int j = 1; j <= 3; ++j) {
                for (int k = 1; k <= 3; ++k) {
                    at(i, j, k) += amount * offset.Coord(i) * offset.Coord(j) * offset.Coord(k);
                }
            }
        }
    }

    [[nodiscard]] double operator()(int i, int j, int k) const {
        return cells_.at(static_cast<std::size_t>(((i - 1) * 3 + j - 1) * 3 + k - 1));
    }

    [[nodiscard]] gp_XYZ vector() const {
        gp_XYZ sum;
        for (int i = 1; i <= 3; ++i) {
            sum.SetCoord(i, (*this)(i, 1, 1) + (*this)(i, 2, 2) + (*this)(i, 3, 3));
        }
        return sum;
    }

    [[nodiscard]] double square() const {
        return std::inner_product(cells_.begin(), cells_.end(), cells_.begin(), 0.0);
    }

    /// Changes its sign in a mirror: the vector products of the planes with the powers of `second`.
    [[nodiscard]] double handedness(const gp_Mat& second) const {
        const gp_Mat squared = second * second;
        double sum = 0;
        for (int i = 1; i <= 3; ++i) {
            gp_Mat plane;
            for (int j = 1; j <= 3; ++j) {
                for (int k = 1; k <= 3; ++k) {
                    plane.SetValue(j, k, (*this)(i, j, k));
                }
            }
            const gp_Mat turned = second * plane * squared;
            const int next = i % 3 + 1;
            const int last = next % 3 + 1;
            sum += turned(next, last) - turned(last, next);
        }
        return sum;
    }

private:
    double& at(int i, int j, int k) {
        return cells_.at(static_cast<std::size_t>(((i - 1) * 3 + j - 1) * 3 + k - 1));
    }

    std::array<double, 27> cells_ = {};
};

}  // namespace

Spread areaSpread(const TopoDS_Face& face) {
    GProp_GProps properties(pointOn(face));
    BRepGProp::SurfaceProperties(face, properties);
    return spreadOf(properties);
}

Spread lengthSpread(const TopoDS_Edge& edge) {
    GProp_GProps properties(pointOn(edge));
    BRepGProp::LinearProperties(edge, properties);
    return spreadOf(properties);
}

SolidSpreads solidSpreads(const TopoDS_Shape& shape) {
    std::vector<Spread> solids;
    for (TopExp_Explorer each(shape, TopAbs_SOLID); each.More(); each.Next()) {
        GProp_GProps properties(pointOn(each.Current()));
        BRepGProp::VolumeProperties(each.Current(), properties);
        solids.push_back(spreadOf(properties));
    }
    return {.count = solids.size(), .whole = sumOf(solids)};
}

Spread sumOf(const std::vector<Spread>& parts) {
    Spread sum;
    for (const Spread& part : parts) {
        sum.amount += part.amount;
        sum.centre += part.centre * part.amount;
    }
    if (sum.amount <= 0) {
        return {};
    }
    sum.centre /= sum.amount;
    for (const Spread& part : parts) {
        const gp_XYZ offset = part.centre - sum.centre;
        sum.second += part.second + outer(offset, offset) * part.amount;
    }
    return sum;
}

PrincipalAxes principalAxes(const gp_Mat& second) {
    math_Matrix matrix(1, 3, 1, 3);
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            matrix(row, column) = (second(row, column) + second(column, row)) / 2;
        }
    }
    const math_Jacobi solved(matrix);
    std::array<int, 3> order = {1, 2, 3};
    std::sort(order.begin(), order.end(),
              [&](int one, int other) { return solved.Value(one) < solved.Value(other); });
    PrincipalAxes result;
    for (std::size_t axis = 0; axis < order.size(); ++axis) {
        math_Vector column(1, 3);
        solved.Vector(order[axis], column);
        result.moments[axis] = solved.Value(order[axis]);
        result.axes[axis] = gp_XYZ(column(1), column(2), column(3));
    }
    return result;
}

std::array<double, 4> thirdMomentsOf(const std::vector<Spread>& areas, const Spread& surface) {
    const double radius = std::sqrt(
        (surface.second(1, 1) + surface.second(2, 2) + surface.second(3, 3)) / surface.amount);
    ThirdMoments moments;
    for (const Spread& area : areas) {
        moments.add(area.amount / surface.amount, (area.centre - surface.centre) / radius);
    }
    const gp_Mat second = surface.second * (1 / (surface.amount * radius * radius));
    const gp_XYZ vector = moments.vector();
    const gp_XYZ once = vector.Multiplied(second);
    const gp_XYZ twice = once.Multiplied(second);
    return {vector.SquareModulus(), moments.square(), vector.DotCross(once, twice),
            moments.handedness(second)};
}

}  // namespace step
