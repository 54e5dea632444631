#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace test_support {

/// A picture by its pixels, each 0xRRGGBB, row by row.
struct Picture {
    /// Colors what a rectangle and the picture have in common.
    void fill(unsigned color, int left, int top, int right, int bottom);

    int width = 0;
    int height = 0;
    std::vector<unsigned> pixels;
};

Picture blackPicture(int width, int height);

/// A PNG file that was read again; without width and height if it could not be.
Picture readPng(const std::filesystem::path& file);

/// Where two pictures differ first; empty if they do not.
std::string difference(const Picture& found, const Picture& expected);

}  // namespace test_support
