#pragma once

#include "tests/tarnix/helpdesk/picture.h"

#include <memory>
#include <string>

namespace test_support {

/// A window with a known pattern in it: its left half in one color, its right half in another, and
/// a corner of 10 by 10 pixels at the lower right in a third.
class PatternWindow {
public:
    static constexpr unsigned kLeft = 0xC02040;
    static constexpr unsigned kRight = 0x1060E0;
    static constexpr unsigned kCorner = 0x20F010;
    static constexpr int kCornerSize = 10;

    /// Shows the window, its inside being that part of the screen, and waits until it is drawn.
    PatternWindow(const std::string& title, int left, int top, int width, int height);
    PatternWindow(const PatternWindow&) = delete;
    PatternWindow& operator=(const PatternWindow&) = delete;
    ~PatternWindow();

    /// Puts the inside of such a window into a picture.
    static void draw(Picture& picture, int left, int top, int width, int height);

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace test_support
