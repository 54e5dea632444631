#pragma once

#include <cstdint>
#include <vector>

namespace parts {

/// Multiples of a power of two, on which the points of a shape lie so that few bits tell them
/// apart. They stay floating-point numbers in the shape's own frame: unlike whole numbers they need
/// no scale, and a node has nothing but the placement of its occurrence.
class GlbGrid {
public:
    /// So fine that the extent of the points is 2^14 to 2^15 steps, which is far below the distance
    /// of any mesh from its shape; coarser for points so far from the origin that floating-point
    /// numbers are coarser there.
    explicit GlbGrid(const std::vector<float>& points);

    /// The nearest points on the grid.
    [[nodiscard]] std::vector<float> rounded(std::vector<float> points) const;

    /// A number on the grid as the filter EXPONENTIAL of EXT_meshopt_compression has it.
    [[nodiscard]] std::uint32_t code(float value) const;

private:
    int exponent_ = 0;
};

}  // namespace parts
