#include "tarnix/platform/posix/paths.h"
#include "tarnix/platform/posix/png_file.h"
#include "tarnix/platform/posix/x11.h"
#include "tarnix/platform/screen.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace tarnix::platform {
namespace {

using x11::Display;
using x11::Owned;

/// How the server lays out the pixels of its screen.
struct PixelLayout {
    int bytes = 0;        ///< for a pixel
    int rowMultiple = 1;  ///< what the bytes of a row are rounded up to
    bool lowByteFirst = true;
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
};

/// One color of a pixel in eight bits.
std::uint8_t colorOf(std::uint32_t pixel, std::uint32_t mask) {
    if (mask == 0) {
        return 0;
    }
    const std::uint32_t lowest = mask & (~mask + 1);
    const std::uint64_t most = mask / lowest;
    constexpr std::uint64_t kMost = 255;
    return static_cast<std::uint8_t>((pixel & mask) / lowest * kMost / most);
}

void findMasks(const xcb_screen_t& screen, PixelLayout& layout) {
    for (auto depths = ::xcb_screen_allowed_depths_iterator(&screen); depths.rem > 0;
         ::xcb_depth_next(&depths)) {
        for (auto visuals = ::xcb_depth_visuals_iterator(depths.data); visuals.rem > 0;
             ::xcb_visualtype_next(&visuals)) {
            if (visuals.data->visual_id == screen.root_visual) {
                layout.red = visuals.data->red_mask;
                layout.green = visuals.data->green_mask;
                layout.blue = visuals.data->blue_mask;
            }
        }
    }
}

PixelLayout layoutOf(const Display& display) {
    PixelLayout layout;
    const xcb_setup_t* const setup = ::xcb_get_setup(display.connection());
    layout.lowByteFirst = setup->image_byte_order == XCB_IMAGE_ORDER_LSB_FIRST;
    for (auto formats = ::xcb_setup_pixmap_formats_iterator(setup); formats.rem > 0;
         ::xcb_format_next(&formats)) {
        if (formats.data->depth == display.screen().root_depth) {
            layout.bytes = formats.data->bits_per_pixel / 8;
            layout.rowMultiple = std::max(1, formats.data->scanline_pad / 8);
        }
    }
    findMasks(display.screen(), layout);
    return layout;
}

std::uint32_t pixelAt(const std::uint8_t* bytes, const PixelLayout& layout) {
    std::uint32_t pixel = 0;
    for (int i = 0; i < layout.bytes; ++i) {
        const int significance = layout.lowByteFirst ? i : layout.bytes - 1 - i;
        pixel |= static_cast<std::uint32_t>(bytes[i]) << (8 * significance);
    }
    return pixel;
}

/// Puts a rectangle of the server's pixels into a picture, its upper left corner at (left, top).
void put(RgbPicture& picture, int left, int top, int width, int height, const std::uint8_t* pixels,
         const PixelLayout& layout) {
    const int plain = width * layout.bytes;
    const int rowBytes = (plain + layout.rowMultiple - 1) / layout.rowMultiple * layout.rowMultiple;
    for (int y = 0; y < height; ++y) {
        const std::uint8_t* from = pixels + static_cast<std::ptrdiff_t>(y) * rowBytes;
        const std::size_t row = static_cast<std::size_t>(top + y) * picture.width;
        std::uint8_t* to = picture.bytes.data() + (row + left) * 3;
        for (int x = 0; x < width; ++x, from += layout.bytes, to += 3) {
            const std::uint32_t pixel = pixelAt(from, layout);
            to[0] = colorOf(pixel, layout.red);
            to[1] = colorOf(pixel, layout.green);
            to[2] = colorOf(pixel, layout.blue);
        }
    }
}

/// Copies what the picture and the screen have in common; the server refuses anything beyond.
bool copyScreen(const Display& display, int left, int top, RgbPicture& picture) {
    const int fromX = std::max(left, 0);
    const int fromY = std::max(top, 0);
    const int width = std::min<int>(left + picture.width, display.screen().width_in_pixels) - fromX;
    const int height =
        std::min<int>(top + picture.height, display.screen().height_in_pixels) - fromY;
    if (width <= 0 || height <= 0) {
        return true;
    }
    const auto cookie =
        ::xcb_get_image(display.connection(), XCB_IMAGE_FORMAT_Z_PIXMAP, display.screen().root,
                        static_cast<std::int16_t>(fromX), static_cast<std::int16_t>(fromY),
                        static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height), ~0U);
    const Owned<xcb_get_image_reply_t> image(
        ::xcb_get_image_reply(display.connection(), cookie, nullptr));
    const PixelLayout layout = layoutOf(display);
    if (image == nullptr || layout.bytes == 0 || layout.bytes > 4) {
        return false;
    }
    put(picture, fromX - left, fromY - top, width, height, ::xcb_get_image_data(image.get()),
        layout);
    return true;
}

std::optional<RgbPicture> takePicture(int left, int top, int width, int height) {
    // The protocol counts pixels in 16 bits; no screen comes near.
    constexpr int kLargest = 32767;
    const bool isInReach = left >= -kLargest && left <= kLargest && top >= -kLargest &&
                           top <= kLargest && width <= kLargest && height <= kLargest;
    const Display display;
    if (!display || width <= 0 || height <= 0 || !isInReach) {
        return std::nullopt;
    }
    RgbPicture picture = {width, height, {}};
    picture.bytes.resize(static_cast<std::size_t>(width) * height * 3);
    return copyScreen(display, left, top, picture) ? std::optional(std::move(picture))
                                                   : std::nullopt;
}

}  // namespace

struct ScreenPicture::State {
    RgbPicture picture;
};

ScreenPicture::ScreenPicture(int left, int top, int width, int height, WindowHandle /*window*/) {
    auto picture = takePicture(left, top, width, height);
    if (picture) {
        state_ = std::make_unique<State>(State{std::move(*picture)});
    }
}

ScreenPicture::~ScreenPicture() = default;

void ScreenPicture::saveAsPng(const std::string& path) const {
    static_cast<void>(writePng(state_->picture, nativePath(path)));
}

}  // namespace tarnix::platform
