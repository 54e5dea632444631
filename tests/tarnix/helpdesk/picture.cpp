#include "tests/tarnix/helpdesk/picture.h"

#include "tests/tarnix/helpdesk/pattern_window.h"

#include <algorithm>
#include <sstream>

namespace test_support {

void Picture::fill(unsigned color, int left, int top, int right, int bottom) {
    for (int y = std::max(top, 0); y < std::min(bottom, height); ++y) {
        for (int x = std::max(left, 0); x < std::min(right, width); ++x) {
            pixels[static_cast<std::size_t>(y) * width + x] = color;
        }
    }
}

Picture blackPicture(int width, int height) {
    return {width, height, std::vector<unsigned>(static_cast<std::size_t>(width) * height)};
}

std::string difference(const Picture& found, const Picture& expected) {
    std::ostringstream text;
    if (found.width != expected.width || found.height != expected.height) {
        text << found.width << " by " << found.height << " instead of " << expected.width << " by "
             << expected.height;
        return text.str();
    }
    const auto [one, other] =
        std::mismatch(found.pixels.begin(), found.pixels.end(), expected.pixels.begin());
    if (one != found.pixels.end()) {
        const auto index = one - found.pixels.begin();
        text << std::hex << *one << " instead of " << *other << std::dec << " at ("
             << index % found.width << ", " << index / found.width << ")";
    }
    return text.str();
}

void PatternWindow::draw(Picture& picture, int left, int top, int width, int height) {
    const int right = left + width;
    const int bottom = top + height;
    picture.fill(kLeft, left, top, left + width / 2, bottom);
    picture.fill(kRight, left + width / 2, top, right, bottom);
    picture.fill(kCorner, right - kCornerSize, bottom - kCornerSize, right, bottom);
}

}  // namespace test_support
