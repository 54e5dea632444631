#pragma once

#include "host/design/shape_data.h"

#include <cstdint>
#include <vector>

namespace parts {

/// Pixels, row by row from the top; red, green, blue and alpha of each, colours not multiplied by
/// alpha.
struct Image {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgba = {};

    bool operator==(const Image&) const = default;
};

struct ThumbnailStyle {
    int size = 128;  ///< pixels of each side
    /// Of what has none in its file.
    host::Rgba colour = {.red = 176, .green = 186, .blue = 198, .alpha = 255};
};

/// A shape on a transparent ground, shaded and with its edges, from the same direction for all:
/// isometric, x to the lower right, y to the upper right, z up. It fills the picture.
///
/// Needs neither a display nor a graphics processor. Its pixels are the same on every machine: what
/// is not whole numbers is addition, multiplication, division and square root, which the standard
/// for floating-point numbers defines to the last bit, and the compiler may not contract them.
Image drawThumbnail(const host::ShapeMesh& mesh, const ThumbnailStyle& style);

}  // namespace parts
