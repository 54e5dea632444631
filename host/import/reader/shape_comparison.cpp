#include "host/import/reader/shape_comparison.h"

#include "host/import/reader/surface_points.h"

#include "host/design/shape_invariants.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <vector>

namespace step {
namespace {

constexpr double kRelative = 1e-5;

/// How many faces and edges are looked at before two shapes count as different. Shapes with so many
/// like landmarks have been made to be so.
constexpr std::size_t kMostMatches = 20'000'000;

bool isNear(double one, double other, double slack) {
    return std::abs(one - other) <= kRelative * std::max(one, other) + slack;
}

double trace(const gp_Mat& matrix) { return matrix(1, 1) + matrix(2, 2) + matrix(3, 3); }

double largestCell(const gp_Mat& matrix) {
    double largest = 0;
    for (int row = 1; row <= 3; ++row) {
        for (int column = 1; column <= 3; ++column) {
            largest = std::max(largest, std::abs(matrix(row, column)));
        }
    }
    return largest;
}

/// Columns at right angles, right-handed, along the first offset and towards the second.
gp_Mat basisOf(const gp_XYZ& first, const gp_XYZ& second) {
    const gp_XYZ x = first.Normalized();
    const gp_XYZ z = first.Crossed(second).Normalized();
    return {x, z.Crossed(x), z};
}

/// Any direction across a line.
gp_XYZ across(const gp_XYZ& line) {
    const gp_XYZ axis =
        std::abs(line.X()) < 0.5 * line.Modulus() ? gp_XYZ(1, 0, 0) : gp_XYZ(0, 1, 0);
    return line.Crossed(axis);
}

class Comparison {
public:
    Comparison(const ShapeMarks& one, const ShapeMarks& other)
        : one_(one), other_(other), tolerance_(positionTolerance(one)) {}

    bool run() {
        if (one_.frame.size() != other_.frame.size()) {
            return false;
        }
        switch (one_.frame.size()) {
            case 0: {
                gp_Mat identity;
                identity.SetIdentity();
                return holds(identity);
            }
            case 1:
                return holdsAlongLine();
            default:
                return holdsInFrame();
        }
    }

private:
    /// The landmarks of the other shape that one of this shape can become.
    [[nodiscard]] std::vector<gp_XYZ> counterparts(const Landmark& landmark) const {
        std::vector<gp_XYZ> found;
        for (const Landmark& each : other_.landmarks) {
            if (each.kind == landmark.kind && each.type == landmark.type &&
                isNear(each.amount, landmark.amount, tolerance_ * std::sqrt(landmark.amount)) &&
                std::abs(each.offset.Modulus() - landmark.offset.Modulus()) <= 2 * tolerance_) {
                found.push_back(each.offset);
            }
        }
        return found;
    }

    /// All that could fix the angle around the line is the same at every angle.
    bool holdsAlongLine() {
        const gp_XYZ first = one_.frame[0].offset;
        const gp_Mat back = basisOf(first, across(first)).Transposed();
        const std::vector<gp_XYZ> firsts = counterparts(one_.frame[0]);
        return std::any_of(firsts.begin(), firsts.end(), [&](const gp_XYZ& target) {
            return holds(basisOf(target, across(target)) * back);
        });
    }

    bool holdsInFrame() {
        const gp_XYZ first = one_.frame[0].offset;
        const gp_XYZ second = one_.frame[1].offset;
        const gp_Mat back = basisOf(first, second).Transposed();
        const double slack = 4 * tolerance_ * (first.Modulus() + second.Modulus());
        const std::vector<gp_XYZ> seconds = counterparts(one_.frame[1]);
        for (const gp_XYZ& newFirst : counterparts(one_.frame[0])) {
            for (const gp_XYZ& newSecond : seconds) {
                if (matches_ < kMostMatches &&
                    std::abs(newFirst.Dot(newSecond) - first.Dot(second)) <= slack &&
                    holds(basisOf(newFirst, newSecond) * back)) {
                    return true;
                }
            }
        }
        return false;
    }

    bool holds(const gp_Mat& rotation) {
        rotation_ = rotation;
        std::vector<std::size_t> faces;
        std::vector<std::size_t> edges;
        return match(one_.faces, other_.faces, &FaceMark::area, faces) &&
               match(one_.edges, other_.edges, &EdgeMark::length, edges) && pointsMatch(faces);
    }

    [[nodiscard]] gp_XYZ moved(const gp_XYZ& point) const {
        return (point - one_.centre).Multiplied(rotation_) + other_.centre;
    }

    /// Matches each mark with one of the other shape, which are in the order of their x.
    template <class Mark>
    bool match(const std::vector<Mark>& ours, const std::vector<Mark>& others, Spread Mark::*spread,
               std::vector<std::size_t>& matched) {
        std::vector<bool> used(others.size());
        for (const Mark& mark : ours) {
            const Spread& from = mark.*spread;
            const gp_XYZ target = moved(from.centre);
            auto at = std::lower_bound(
                others.begin(), others.end(), target.X() - tolerance_,
                [spread](const Mark& each, double x) { return (each.*spread).centre.X() < x; });
            for (;; ++at) {
                ++matches_;
                if (at == others.end() || (*at.*spread).centre.X() > target.X() + tolerance_) {
                    return false;
                }
                const auto index = static_cast<std::size_t>(at - others.begin());
                if (!used[index] && at->kind == mark.kind && isSame(from, target, *at.*spread)) {
                    used[index] = true;
                    matched.push_back(index);
                    break;
                }
            }
        }
        return ours.size() == others.size();
    }

    /// Compares amount, place and spread.
    [[nodiscard]] bool isSame(const Spread& from, const gp_XYZ& target, const Spread& to) const {
        if ((target - to.centre).Modulus() > tolerance_ ||
            !isNear(from.amount, to.amount, 4 * tolerance_ * std::sqrt(from.amount))) {
            return false;
        }
        const double spread = trace(from.second);
        const gp_Mat turned = rotation_ * from.second * rotation_.Transposed();
        return largestCell(turned - to.second) <=
               4 * (kRelative * spread + tolerance_ * std::sqrt(from.amount * spread));
    }

    bool pointsMatch(const std::vector<std::size_t>& matched) {
        for (std::size_t at = 0; at < matched.size(); ++at) {
            const auto move = [this](const gp_XYZ& point) { return moved(point); };
            if (!pointsAreOn(one_.faces[at].face, move, other_.faces[matched[at]].face,
                             2 * tolerance_)) {
                return false;
            }
        }
        return true;
    }

    const ShapeMarks& one_;
    const ShapeMarks& other_;
    double tolerance_;
    gp_Mat rotation_;
    std::size_t matches_ = 0;
};

}  // namespace

bool areCongruent(const ShapeMarks& one, const ShapeMarks& other) {
    return host::canBeEqual(one.invariants, other.invariants) && Comparison(one, other).run();
}

}  // namespace step
