#include "tests/tarnix/commands/framed_window.h"

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdlib>

namespace test_support {
namespace {

constexpr int kFrame = 7;

}  // namespace

struct FramedWindow::State {
    xcb_connection_t* connection = nullptr;
    xcb_window_t window = 0;

    /// Waits until the server has done what it was asked.
    void finish() const {
        std::free(
            ::xcb_get_input_focus_reply(connection, ::xcb_get_input_focus(connection), nullptr));
    }
};

FramedWindow::FramedWindow(const std::string& title, int left, int top, int width, int height)
    : state_(std::make_unique<State>()) {
    xcb_connection_t* const connection = ::xcb_connect(nullptr, nullptr);
    const xcb_screen_t* const screen = ::xcb_setup_roots_iterator(::xcb_get_setup(connection)).data;
    state_->connection = connection;
    state_->window = ::xcb_generate_id(connection);
    // The place is that of the border's corner.
    ::xcb_create_window(connection, XCB_COPY_FROM_PARENT, state_->window, screen->root,
                        static_cast<std::int16_t>(left - kFrame),
                        static_cast<std::int16_t>(top - kFrame), static_cast<std::uint16_t>(width),
                        static_cast<std::uint16_t>(height), kFrame, XCB_WINDOW_CLASS_INPUT_OUTPUT,
                        screen->root_visual, 0, nullptr);
    ::xcb_change_property(connection, XCB_PROP_MODE_REPLACE, state_->window, XCB_ATOM_WM_NAME,
                          XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(title.size()),
                          title.data());
    ::xcb_map_window(connection, state_->window);
    state_->finish();
}

FramedWindow::~FramedWindow() {
    ::xcb_destroy_window(state_->connection, state_->window);
    state_->finish();
    ::xcb_disconnect(state_->connection);
}

void FramedWindow::move(int left, int top, int width, int height) const {
    const std::array<std::uint32_t, 4> values = {
        static_cast<std::uint32_t>(left - kFrame), static_cast<std::uint32_t>(top - kFrame),
        static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height)};
    ::xcb_configure_window(state_->connection, state_->window,
                           XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                               XCB_CONFIG_WINDOW_HEIGHT,
                           values.data());
    state_->finish();
}

}  // namespace test_support
