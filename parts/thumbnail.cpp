#include "parts/thumbnail.h"

#include "parts/canvas.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace parts {
namespace {

using Vector = std::array<double, 3>;

constexpr int kSamplesPerPixel = 4;
constexpr host::Rgba kEdgeColour = {.red = 45, .green = 52, .blue = 62, .alpha = 255};

// Square roots of 1/2, 1/6 and 1/3.
constexpr double kHalfRoot = 0.70710678118654757;
constexpr double kSixth = 0.40824829046386302;
constexpr double kThird = 0.57735026918962573;

constexpr Vector kRight = {kHalfRoot, kHalfRoot, 0};
constexpr Vector kUp = {-kSixth, kSixth, 2 * kSixth};
constexpr Vector kViewer = {kThird, -kThird, kThird};
/// From over the viewer's left shoulder; of length 1.
constexpr Vector kLight = {0.25, -0.5, 0.82915619758884995};

double dot(const Vector& one, const Vector& other) {
    return one[0] * other[0] + one[1] * other[1] + one[2] * other[2];
}

Vector vectorAt(const std::vector<float>& values, std::size_t point) {
    return {values[3 * point], values[3 * point + 1], values[3 * point + 2]};
}

/// Scales a shape to a canvas, a sixteenth of which stays free on each side.
class Projection {
public:
    Projection(const host::ShapeMesh& mesh, int samples) {
        include(mesh.positionsMm);
        include(mesh.edgePointsMm);
        const double extent = std::max({highest_[0] - lowest_[0], highest_[1] - lowest_[1],
                                        std::numeric_limits<double>::min()});
        constexpr double kUsed = 0.875;
        scale_ = samples * kUsed / extent;
        middle_ = samples / 2.0;
    }

    [[nodiscard]] CanvasPoint place(const Vector& point) const {
        const auto step = [this](double offset) {
            return static_cast<std::int64_t>(
                std::floor((middle_ + offset * scale_) * kCanvasSteps + 0.5));
        };
        return {.x = step(dot(point, kRight) - (lowest_[0] + highest_[0]) / 2),
                .y = step((lowest_[1] + highest_[1]) / 2 - dot(point, kUp)),
                .depth = dot(point, kViewer) * scale_,
                .light = 1};
    }

private:
    void include(const std::vector<float>& points) {
        for (std::size_t point = 0; 3 * point + 2 < points.size(); ++point) {
            const Vector at = vectorAt(points, point);
            const std::array<double, 2> seen = {dot(at, kRight), dot(at, kUp)};
            for (std::size_t axis = 0; axis < seen.size(); ++axis) {
                lowest_[axis] = std::min(lowest_[axis], seen[axis]);
                highest_[axis] = std::max(highest_[axis], seen[axis]);
            }
        }
    }

    std::array<double, 2> lowest_ = {std::numeric_limits<double>::max(),
                                     std::numeric_limits<double>::max()};
    std::array<double, 2> highest_ = {std::numeric_limits<double>::lowest(),
                                      std::numeric_limits<double>::lowest()};
    double scale_ = 1;
    double middle_ = 0;
};

struct Triangle {
    std::array<CanvasPoint, 3> corners = {};
    host::Rgba colour = {};

    [[nodiscard]] double depth() const {
        return corners[0].depth + corners[1].depth + corners[2].depth;
    }
};

class Drawing {
public:
    Drawing(const host::ShapeMesh& mesh, const ThumbnailStyle& style)
        : mesh_(mesh),
          style_(style),
          canvas_(style.size, kSamplesPerPixel),
          view_(mesh, canvas_.samples()) {}

    Image draw() {
        std::vector<Triangle> transparent;
        for (const host::MeshGroup& group : mesh_.groups) {
            const host::Rgba colour = group.colour.value_or(style_.colour);
            for (std::size_t at = 0; at < group.indexCount; at += 3) {
                const Triangle triangle = triangleAt(group.firstIndex + at, colour);
                if (colour.alpha == 255) {
                    canvas_.fill(triangle.corners, colour);
                } else {
                    transparent.push_back(triangle);
                }
            }
        }
        std::stable_sort(
            transparent.begin(), transparent.end(),
            [](const Triangle& one, const Triangle& other) { return one.depth() < other.depth(); });
        for (const Triangle& triangle : transparent) {
            canvas_.fill(triangle.corners, triangle.colour);
        }
        drawEdges();
        return canvas_.image();
    }

private:
    [[nodiscard]] Triangle triangleAt(std::size_t index, const host::Rgba& colour) const {
        Triangle triangle{.colour = colour};
        double facing = 0;
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const std::uint32_t point = mesh_.indices[index + corner];
            triangle.corners[corner] = view_.place(vectorAt(mesh_.positionsMm, point));
            facing += dot(vectorAt(mesh_.normals, point), kViewer);
        }
        for (std::size_t corner = 0; corner < 3; ++corner) {
            const double towards =
                dot(vectorAt(mesh_.normals, mesh_.indices[index + corner]), kLight);
            // A surface that is seen from behind is lit like one seen from its front.
            const double lit = std::max(facing < 0 ? -towards : towards, 0.0);
            triangle.corners[corner].light = 0.4 + 0.65 * lit;
        }
        return triangle;
    }

    void drawEdges() {
        constexpr double kSlack = 0.006;  // of the picture
        const double slack = canvas_.samples() * kSlack;
        std::size_t point = 0;
        for (const std::uint32_t end : mesh_.edgeEnds) {
            for (++point; point < end; ++point) {
                canvas_.drawLine(view_.place(vectorAt(mesh_.edgePointsMm, point - 1)),
                                 view_.place(vectorAt(mesh_.edgePointsMm, point)), kEdgeColour,
                                 slack);
            }
        }
    }

    const host::ShapeMesh& mesh_;
    const ThumbnailStyle& style_;
    Canvas canvas_;
    Projection view_;
};

}  // namespace

Image drawThumbnail(const host::ShapeMesh& mesh, const ThumbnailStyle& style) {
    return Drawing(mesh, style).draw();
}

}  // namespace parts
