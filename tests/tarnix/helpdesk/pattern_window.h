#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace test_support {

/// A window with a known pattern in it: its left half in one color, its right half in another, and
/// a corner of 10 by 10 pixels at the lower right in a third.
class PatternWindow {
public:
    static constexpr unsigned kLeft = 0xC02040;
    static constexpr unsigned kRight = 0x1060E0;
    static constexpr unsigned kCorner = 0x20F010;

    /// Shows the window, its inside being that part of the screen, and waits until it is drawn.
    PatternWindow(const std::string& title, int left, int top, int width, int height);
    PatternWindow(const PatternWindow&) = delete;
    PatternWindow& operator=(const PatternWindow&) = delete;
    ~PatternWindow();

private:
    struct State;

    std::unique_ptr<State> state_;
};

/// A PNG file that was read again.
struct PngPixels {
    explicit PngPixels(const std::filesystem::path& file);

    /// Red, green and blue of a pixel, as in 0xRRGGBB.
    [[nodiscard]] unsigned at(int x, int y) const {
        return pixels.at(static_cast<std::size_t>(y) * width + x);
    }

    int width = 0;  ///< 0 if the file could not be read
    int height = 0;
    std::vector<unsigned> pixels;
};

}  // namespace test_support
