#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarnix::platform {

/// An opaque picture: three bytes for each pixel, red first, row by row.
struct RgbPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> bytes;
};

/// Writes a picture into a PNG file, replacing one that is there. False if it failed.
bool writePng(const RgbPicture& picture, const std::string& nativePath);

}  // namespace tarnix::platform
