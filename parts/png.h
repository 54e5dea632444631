#pragma once

#include "parts/thumbnail.h"

#include <string>

namespace parts {

/// The bytes of a PNG file. Throws a `std::runtime_error` where it cannot be written, and always on
/// Windows, where no design has shapes to draw.
std::string pngOf(const Image& image);

}  // namespace parts
