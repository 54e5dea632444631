#include "tests/tarnix/helpdesk/pattern_window.h"

#include <png.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>

namespace test_support {

struct PatternWindow::State {
    xcb_connection_t* connection = nullptr;
    xcb_window_t window = 0;

    void fill(unsigned color, int left, int top, int width, int height) const {
        const xcb_gcontext_t context = ::xcb_generate_id(connection);
        const std::uint32_t value = color;
        ::xcb_create_gc(connection, context, window, XCB_GC_FOREGROUND, &value);
        const xcb_rectangle_t area = {
            static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
            static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height)};
        ::xcb_poly_fill_rectangle(connection, window, context, 1, &area);
    }

    /// Waits until the server has done what it was asked.
    void finish() const {
        std::free(
            ::xcb_get_input_focus_reply(connection, ::xcb_get_input_focus(connection), nullptr));
    }
};

PatternWindow::PatternWindow(const std::string& title, int left, int top, int width, int height)
    : state_(std::make_unique<State>()) {
    xcb_connection_t* const connection = ::xcb_connect(nullptr, nullptr);
    const xcb_screen_t* const screen = ::xcb_setup_roots_iterator(::xcb_get_setup(connection)).data;
    state_->connection = connection;
    state_->window = ::xcb_generate_id(connection);
    ::xcb_create_window(connection, XCB_COPY_FROM_PARENT, state_->window, screen->root,
                        static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                        static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                        /*border_width=*/0, XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0,
                        nullptr);
    ::xcb_change_property(connection, XCB_PROP_MODE_REPLACE, state_->window, XCB_ATOM_WM_NAME,
                          XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(title.size()),
                          title.data());
    ::xcb_map_window(connection, state_->window);
    state_->finish();
    state_->fill(kLeft, 0, 0, width / 2, height);
    state_->fill(kRight, width / 2, 0, width - width / 2, height);
    state_->fill(kCorner, width - kCornerSize, height - kCornerSize, kCornerSize, kCornerSize);
    state_->finish();
}

PatternWindow::~PatternWindow() {
    ::xcb_destroy_window(state_->connection, state_->window);
    state_->finish();
    ::xcb_disconnect(state_->connection);
}

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
