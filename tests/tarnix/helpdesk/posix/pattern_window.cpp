#include "tests/tarnix/helpdesk/pattern_window.h"

#include "tests/support/posix/x_window.h"

#include <png.h>

#include <cstdint>

namespace test_support {

struct PatternWindow::State {
    XWindow window;

    void fill(unsigned color, int left, int top, int width, int height) const {
        xcb_connection_t* const connection = window.connection();
        const xcb_gcontext_t context = ::xcb_generate_id(connection);
        const std::uint32_t value = color;
        ::xcb_create_gc(connection, context, window.id(), XCB_GC_FOREGROUND, &value);
        const xcb_rectangle_t area = {
            static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
            static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height)};
        ::xcb_poly_fill_rectangle(connection, window.id(), context, 1, &area);
    }
};

PatternWindow::PatternWindow(const std::string& title, int left, int top, int width, int height)
    : state_(new State{{title, left, top, width, height, /*border=*/0}}) {
    state_->fill(kLeft, 0, 0, width / 2, height);
    state_->fill(kRight, width / 2, 0, width - width / 2, height);
    state_->fill(kCorner, width - kCornerSize, height - kCornerSize, kCornerSize, kCornerSize);
    state_->window.finish();
}

PatternWindow::~PatternWindow() = default;

Picture readPng(const std::filesystem::path& file) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (::png_image_begin_read_from_file(&image, file.c_str()) == 0) {
        return {};
    }
    image.format = PNG_FORMAT_RGB;
    std::vector<std::uint8_t> bytes(PNG_IMAGE_SIZE(image));
    if (::png_image_finish_read(&image, nullptr, bytes.data(), 0, nullptr) == 0) {
        return {};
    }
    Picture picture = blackPicture(static_cast<int>(image.width), static_cast<int>(image.height));
    for (std::size_t i = 0; i < picture.pixels.size(); ++i) {
        const std::uint8_t* const color = &bytes[3 * i];
        picture.pixels[i] =
            static_cast<unsigned>(color[0]) << 16 | static_cast<unsigned>(color[1]) << 8 | color[2];
    }
    return picture;
}

}  // namespace test_support
