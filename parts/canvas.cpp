#include "parts/canvas.h"

#include <algorithm>
#include <cstdlib>

namespace parts {
namespace {

constexpr std::uint32_t kOpaque = 255;

/// Twice the area to the left of a line, in square steps.
std::int64_t areaLeftOf(const CanvasPoint& from, const CanvasPoint& to, std::int64_t x,
                        std::int64_t y) {
    return (to.x - from.x) * (y - from.y) - (to.y - from.y) * (x - from.x);
}

/// Of a sample on the line between two triangles exactly one is to have it.
std::int64_t ownsItsLine(const CanvasPoint& from, const CanvasPoint& to) {
    return to.y < from.y || (to.y == from.y && to.x > from.x) ? 0 : -1;
}

std::int64_t sampleOf(std::int64_t step, std::int64_t samples) {
    return std::clamp<std::int64_t>(step / kCanvasSteps, 0, samples - 1);
}

}  // namespace

Canvas::Canvas(int pixels, int samplesPerPixel)
    : pixels_(pixels),
      samplesPerPixel_(samplesPerPixel),
      samples_(pixels * samplesPerPixel),
      cells_(static_cast<std::size_t>(samples_) * static_cast<std::size_t>(samples_)) {}

Canvas::Sample* Canvas::at(std::int64_t x, std::int64_t y) {
    if (x < 0 || y < 0 || x >= samples_ || y >= samples_) {
        return nullptr;
    }
    return &cells_[static_cast<std::size_t>(y * samples_ + x)];
}

void Canvas::blend(Sample& sample, const host::Rgba& colour, double light) {
    const std::array<std::uint8_t, 4> over = {colour.red, colour.green, colour.blue, 255};
    const std::uint32_t alpha = colour.alpha;
    for (std::size_t channel = 0; channel < over.size(); ++channel) {
        const double lit = channel < 3 ? over[channel] * light + 0.5 : over[channel];
        const auto value = std::min(static_cast<std::uint32_t>(lit), kOpaque);
        sample.rgba[channel] =
            (value * alpha + sample.rgba[channel] * (kOpaque - alpha) + kOpaque / 2) / kOpaque;
    }
}

void Canvas::fill(const std::array<CanvasPoint, 3>& corners, const host::Rgba& colour) {
    std::array<CanvasPoint, 3> p = corners;
    std::int64_t area = areaLeftOf(p[0], p[1], p[2].x, p[2].y);
    if (area == 0) {
        return;
    }
    if (area < 0) {
        std::swap(p[1], p[2]);
        area = -area;
    }
    const auto [left, right] = std::minmax({p[0].x, p[1].x, p[2].x});
    const auto [top, bottom] = std::minmax({p[0].y, p[1].y, p[2].y});
    const std::array<std::int64_t, 3> owned = {ownsItsLine(p[1], p[2]), ownsItsLine(p[2], p[0]),
                                               ownsItsLine(p[0], p[1])};
    const std::int64_t last = sampleOf(right, samples_);
    for (std::int64_t y = sampleOf(top, samples_); y <= sampleOf(bottom, samples_); ++y) {
        for (std::int64_t x = sampleOf(left, samples_); x <= last; ++x) {
            const std::int64_t stepX = x * kCanvasSteps + kCanvasSteps / 2;
            const std::int64_t stepY = y * kCanvasSteps + kCanvasSteps / 2;
            const std::array<std::int64_t, 3> shares = {areaLeftOf(p[1], p[2], stepX, stepY),
                                                        areaLeftOf(p[2], p[0], stepX, stepY),
                                                        areaLeftOf(p[0], p[1], stepX, stepY)};
            if (shares[0] + owned[0] < 0 || shares[1] + owned[1] < 0 || shares[2] + owned[2] < 0) {
                continue;
            }
            double depth = 0;
            double light = 0;
            for (std::size_t corner = 0; corner < 3; ++corner) {
                const double share =
                    static_cast<double>(shares[corner]) / static_cast<double>(area);
                depth += share * p[corner].depth;
                light += share * p[corner].light;
            }
            Sample& sample = *at(x, y);
            if (depth > sample.depth) {
                blend(sample, colour, light);
                sample.depth = colour.alpha == kOpaque ? depth : sample.depth;
            }
        }
    }
}

void Canvas::drawLine(const CanvasPoint& from, const CanvasPoint& to, const host::Rgba& colour,
                      double slack) {
    const std::int64_t steps =
        std::max(std::abs(to.x - from.x), std::abs(to.y - from.y)) / kCanvasSteps + 1;
    for (std::int64_t step = 0; step <= steps; ++step) {
        const std::int64_t x = (from.x + (to.x - from.x) * step / steps) / kCanvasSteps;
        const std::int64_t y = (from.y + (to.y - from.y) * step / steps) / kCanvasSteps;
        const double depth = from.depth + (to.depth - from.depth) * static_cast<double>(step) /
                                              static_cast<double>(steps);
        for (std::int64_t dy = -1; dy <= 1; ++dy) {
            for (std::int64_t dx = -1; dx <= 1; ++dx) {
                Sample* const sample = at(x + dx, y + dy);
                if (sample != nullptr && depth + slack >= sample->depth) {
                    blend(*sample, colour, 1);
                }
            }
        }
    }
}

Image Canvas::image() const {
    Image image{.width = pixels_, .height = pixels_};
    const int perPixel = samplesPerPixel_;
    for (int y = 0; y < pixels_; ++y) {
        for (int x = 0; x < pixels_; ++x) {
            std::array<std::uint32_t, 4> sum = {};
            for (int inside = 0; inside < perPixel * perPixel; ++inside) {
                const int row = y * perPixel + inside / perPixel;
                const int cell = row * samples_ + x * perPixel + inside % perPixel;
                const Sample& sample = cells_[static_cast<std::size_t>(cell)];
                for (std::size_t channel = 0; channel < sum.size(); ++channel) {
                    sum[channel] += sample.rgba[channel];
                }
            }
            const std::uint32_t alpha = std::max(sum[3], 1U);
            for (std::size_t channel = 0; channel < 3; ++channel) {
                image.rgba.push_back(static_cast<std::uint8_t>(
                    std::min((sum[channel] * kOpaque + alpha / 2) / alpha, kOpaque)));
            }
            const auto count = static_cast<std::uint32_t>(perPixel * perPixel);
            image.rgba.push_back(static_cast<std::uint8_t>((sum[3] + count / 2) / count));
        }
    }
    return image;
}

}  // namespace parts
