#pragma once

#include "parts/thumbnail.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace parts {

/// A point as it is drawn: whole steps of 1/256 sample across and down, depth towards the viewer,
/// and how light it is, 0 to 1.
struct CanvasPoint {
    std::int64_t x = 0;
    std::int64_t y = 0;
    double depth = 0;
    double light = 1;
};

inline constexpr std::int64_t kCanvasSteps = 256;  ///< in a sample

/// Samples with a depth each, of which some make a pixel.
class Canvas {
public:
    /// A square of so many pixels; of so many by so many samples each.
    Canvas(int pixels, int samplesPerPixel);

    [[nodiscard]] int samples() const { return samples_; }

    /// Fills what is nearer than what is there. What shines through leaves the depth as it is.
    void fill(const std::array<CanvasPoint, 3>& corners, const host::Rgba& colour);

    /// Draws a line of three samples over what is not nearer by more than `slack`.
    void drawLine(const CanvasPoint& from, const CanvasPoint& to, const host::Rgba& colour,
                  double slack);

    /// The mean of the samples of each pixel.
    [[nodiscard]] Image image() const;

private:
    /// Colours multiplied by alpha.
    struct Sample {
        std::array<std::uint32_t, 4> rgba = {};
        double depth = -std::numeric_limits<double>::infinity();
    };

    Sample* at(std::int64_t x, std::int64_t y);
    static void blend(Sample& sample, const host::Rgba& colour, double light);

    int pixels_;
    int samplesPerPixel_;
    int samples_;
    std::vector<Sample> cells_;
};

}  // namespace parts
