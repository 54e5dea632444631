#include "host/design/shape_invariants.h"

#include <algorithm>
#include <cmath>

namespace host {
namespace {

/// How far a point may be from where it should be: what a file's last digits leave open.
constexpr double kFloorCentimetres = 1e-7;

double displacementOf(const ShapeInvariants& shape) {
    return std::max(kShapeTolerance * std::sqrt(shape.area), kFloorCentimetres);
}

bool isNear(double one, double other, double slack) {
    return std::abs(one - other) <=
           kShapeTolerance * std::max(std::abs(one), std::abs(other)) + slack;
}

bool countsAreEqual(const ShapeInvariants& one, const ShapeInvariants& other) {
    return one.solids == other.solids && one.shells == other.shells && one.faces == other.faces &&
           one.edges == other.edges && one.vertices == other.vertices;
}

/// A displaced outline changes an area by the displacement times its length; eight times the side
/// of an equal square covers all but slivers.
bool areasAreNear(double one, double other, double displacement) {
    constexpr double kOutline = 8;
    return isNear(one, other, kOutline * displacement * std::sqrt(std::max(one, other)));
}

bool momentsAreNear(const ShapeInvariants& one, const ShapeInvariants& other) {
    constexpr double kSecond = 10 * kShapeTolerance;  // lengths come in to the fifth power
    constexpr double kThird = 20 * kShapeTolerance;
    const double largest = std::max(one.secondMoments[2], other.secondMoments[2]);
    for (std::size_t axis = 0; axis < one.secondMoments.size(); ++axis) {
        if (!isNear(one.secondMoments[axis], other.secondMoments[axis], kSecond * largest)) {
            return false;
        }
    }
    for (std::size_t at = 0; at < one.thirdMoments.size(); ++at) {
        if (!isNear(one.thirdMoments[at], other.thirdMoments[at], kThird)) {
            return false;
        }
    }
    return true;
}

}  // namespace

bool canBeEqual(const ShapeInvariants& one, const ShapeInvariants& other) {
    const double displacement = std::max(displacementOf(one), displacementOf(other));
    return countsAreEqual(one, other) && areasAreNear(one.area, other.area, displacement) &&
           isNear(one.volume, other.volume, displacement * std::max(one.area, other.area)) &&
           momentsAreNear(one, other) &&
           std::equal(one.faceAreas.begin(), one.faceAreas.end(), other.faceAreas.begin(),
                      other.faceAreas.end(), [displacement](double area, double otherArea) {
                          return areasAreNear(area, otherArea, displacement);
                      });
}

}  // namespace host
