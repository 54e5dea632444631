#include "host/design/transform.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace host {
namespace {

double at(const Transform& transform, std::size_t row, std::size_t column) {
    return transform.cells[row * 4 + column];
}

/// The cofactor of a cell of the upper left 3 by 3 part.
double cofactor(const Transform& transform, std::size_t row, std::size_t column) {
    const std::size_t nextRow = (row + 1) % 3;
    const std::size_t lastRow = (row + 2) % 3;
    const std::size_t nextColumn = (column + 1) % 3;
    const std::size_t lastColumn = (column + 2) % 3;
    return at(transform, nextRow, nextColumn) * at(transform, lastRow, lastColumn) -
           at(transform, nextRow, lastColumn) * at(transform, lastRow, nextColumn);
}

}  // namespace

Transform operator*(const Transform& outer, const Transform& inner) {
    Transform result;
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 4; ++column) {
            double sum = column == 3 ? at(outer, row, 3) : 0;
            for (std::size_t k = 0; k < 3; ++k) {
                sum += at(outer, row, k) * at(inner, k, column);
            }
            result.cells[row * 4 + column] = sum;
        }
    }
    return result;
}

std::optional<Transform> inverse(const Transform& transform) {
    double determinant = 0;
    for (std::size_t column = 0; column < 3; ++column) {
        determinant += at(transform, 0, column) * cofactor(transform, 0, column);
    }
    if (determinant == 0 || !std::isfinite(1 / determinant)) {
        return std::nullopt;
    }
    Transform result;
    for (std::size_t row = 0; row < 3; ++row) {
        double shift = 0;
        for (std::size_t column = 0; column < 3; ++column) {
            const double cell = cofactor(transform, column, row) / determinant;
            result.cells[row * 4 + column] = cell;
            shift -= cell * at(transform, column, 3);
        }
        result.cells[row * 4 + 3] = shift;
    }
    return result;
}

Transform translation(double x, double y, double z) {
    Transform result;
    result.cells[3] = x;
    result.cells[7] = y;
    result.cells[11] = z;
    return result;
}

bool keepsAxes(const Transform& transform) {
    std::array<int, 3> usesOfColumn = {};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            const double cell = at(transform, row, column);
            if (std::abs(cell) == 1) {
                ++usesOfColumn[column];
            } else if (cell != 0) {
                return false;
            }
        }
    }
    if (usesOfColumn != std::array<int, 3>{1, 1, 1}) {
        return false;
    }
    return std::abs(cofactor(transform, 0, 0) * at(transform, 0, 0) +
                    cofactor(transform, 0, 1) * at(transform, 0, 1) +
                    cofactor(transform, 0, 2) * at(transform, 0, 2)) == 1;
}

Box placed(const Box& box, const Transform& placement) {
    Box result;
    for (std::size_t row = 0; row < 3; ++row) {
        result.min[row] = result.max[row] = at(placement, row, 3);
        for (std::size_t k = 0; k < 3; ++k) {
            const double one = at(placement, row, k) * box.min[k];
            const double other = at(placement, row, k) * box.max[k];
            result.min[row] += std::min(one, other);
            result.max[row] += std::max(one, other);
        }
    }
    return result;
}

void include(std::optional<Box>& sum, const std::optional<Box>& box) {
    if (!sum || !box) {
        sum = sum ? sum : box;
        return;
    }
    for (std::size_t axis = 0; axis < 3; ++axis) {
        sum->min[axis] = std::min(sum->min[axis], box->min[axis]);
        sum->max[axis] = std::max(sum->max[axis], box->max[axis]);
    }
}

}  // namespace host
