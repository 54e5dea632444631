#include "parts/glb_grid.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace parts {
namespace {

/// The largest of the extents along the axes.
float extentOf(const std::vector<float>& points) {
    float extent = 0;
    for (std::size_t axis = 0; axis < 3 && axis < points.size(); ++axis) {
        float low = points[axis];
        float high = low;
        for (std::size_t at = axis; at < points.size(); at += 3) {
            low = std::min(low, points[at]);
            high = std::max(high, points[at]);
        }
        extent = std::max(extent, high - low);
    }
    return extent;
}

float farthest(const std::vector<float>& points) {
    float distance = 0;
    for (const float value : points) {
        distance = std::max(distance, std::abs(value));
    }
    return distance;
}

/// The least n for which `value` is less than 2^n.
int binaryDigits(float value) {
    int exponent = 0;
    static_cast<void>(std::frexp(value, &exponent));
    return exponent;
}

}  // namespace

GlbGrid::GlbGrid(const std::vector<float>& points) {
    constexpr int kStepsOfExtent = 15;
    constexpr int kMantissa = 23;  // and a sign
    constexpr int kLeast = -100;   // the format's
    exponent_ = std::max({binaryDigits(extentOf(points)) - kStepsOfExtent,
                          binaryDigits(farthest(points)) - kMantissa, kLeast});
}

std::vector<float> GlbGrid::rounded(std::vector<float> points) const {
    constexpr float kMost = (1 << 23U) - 1;
    for (float& value : points) {
        const float steps = std::round(std::ldexp(value, -exponent_));
        value = std::ldexp(std::clamp(steps, -kMost, kMost), exponent_);
    }
    return points;
}

std::uint32_t GlbGrid::code(float value) const {
    constexpr unsigned kMantissaBits = 24;
    constexpr std::uint32_t kMantissaMask = (1U << kMantissaBits) - 1;
    const auto steps = static_cast<std::int32_t>(std::ldexp(value, -exponent_));
    return (static_cast<std::uint32_t>(exponent_) << kMantissaBits) |
           (static_cast<std::uint32_t>(steps) & kMantissaMask);
}

}  // namespace parts
