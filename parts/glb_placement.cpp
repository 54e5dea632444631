#include "parts/glb_placement.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace parts {
namespace {

using nlohmann::json;
using Quaternion = std::array<double, 4>;  ///< x, y, z, w

constexpr double kMillimetresPerCentimetre = 10;

double cell(const host::Transform& placement, std::size_t row, std::size_t column) {
    return placement.cells[4 * row + column];
}

/// Further digits would be noise, and most of a model with many occurrences.
double rounded(double value, double stepsOfOne) {
    return std::round(value * stepsOfOne) / stepsOfOne + 0.0;  // no negative zero
}

json matrixOf(const host::Transform& placement) {
    json cells = json::array();
    for (std::size_t column = 0; column < 4; ++column) {
        for (std::size_t row = 0; row < 4; ++row) {
            const bool isShift = column == 3 && row < 3;
            cells.push_back(cell(placement, row, column) *
                            (isShift ? kMillimetresPerCentimetre : 1));
        }
    }
    return cells;
}

/// The number of the four that is farthest from zero decides by which formula the others are found.
Quaternion quaternionOf(const host::Transform& placement) {
    const double trace = cell(placement, 0, 0) + cell(placement, 1, 1) + cell(placement, 2, 2);
    Quaternion fourSquares = {};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        fourSquares[axis] = 1 + 2 * cell(placement, axis, axis) - trace;
    }
    fourSquares[3] = 1 + trace;
    const auto largest = static_cast<std::size_t>(
        std::max_element(fourSquares.begin(), fourSquares.end()) - fourSquares.begin());
    const double twice = std::sqrt(std::max(fourSquares[largest], 0.0));
    Quaternion result = {};
    for (std::size_t number = 0; number < 4; ++number) {
        const std::size_t axis = number == 3 ? largest : number;
        const bool isTurn = (number == 3) != (largest == 3);
        result[number] =
            number == largest ? twice / 2
            : isTurn          ? (cell(placement, (axis + 2) % 3, (axis + 1) % 3) -
                        cell(placement, (axis + 1) % 3, (axis + 2) % 3)) /
                           (2 * twice)
                     : (cell(placement, number, largest) + cell(placement, largest, number)) /
                           (2 * twice);
    }
    return result;
}

/// What a quaternion does to an axis.
std::array<double, 3> columnOf(const Quaternion& turn, std::size_t axis) {
    const std::size_t next = (axis + 1) % 3;
    const std::size_t last = (axis + 2) % 3;
    std::array<double, 3> column = {};
    column[axis] = 1 - 2 * (turn[next] * turn[next] + turn[last] * turn[last]);
    column[next] = 2 * (turn[axis] * turn[next] + turn[3] * turn[last]);
    column[last] = 2 * (turn[axis] * turn[last] - turn[3] * turn[next]);
    return column;
}

bool isTurnOf(const Quaternion& turn, const host::Transform& placement) {
    constexpr double kTolerance = 1e-7;
    for (std::size_t column = 0; column < 3; ++column) {
        const std::array<double, 3> expected = columnOf(turn, column);
        for (std::size_t row = 0; row < 3; ++row) {
            // Written so that what is no number is no turn.
            if (!(std::abs(expected[row] - cell(placement, row, column)) <= kTolerance)) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

void setPlacement(json& node, const host::Transform& placement) {
    constexpr double kStepsOfMillimetre = 1e6;
    constexpr double kStepsOfTurn = 1e9;
    Quaternion turn = quaternionOf(placement);
    if (!isTurnOf(turn, placement)) {
        node["matrix"] = matrixOf(placement);
        return;
    }
    std::array<double, 3> shift = {};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        shift[axis] =
            rounded(cell(placement, axis, 3) * kMillimetresPerCentimetre, kStepsOfMillimetre);
    }
    for (double& number : turn) {
        number = rounded(number, kStepsOfTurn);
    }
    if (shift != std::array<double, 3>()) {
        node["translation"] = shift;
    }
    if (turn != Quaternion{0, 0, 0, 1}) {
        node["rotation"] = turn;
    }
}

}  // namespace parts
