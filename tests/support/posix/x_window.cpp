#include "tests/support/posix/x_window.h"

#include <cstdint>
#include <cstdlib>

namespace test_support {

XWindow::XWindow(const std::string& title, int left, int top, int width, int height, int border)
    : connection_(::xcb_connect(nullptr, nullptr)), id_(::xcb_generate_id(connection_)) {
    const xcb_screen_t* const screen =
        ::xcb_setup_roots_iterator(::xcb_get_setup(connection_)).data;
    ::xcb_create_window(connection_, XCB_COPY_FROM_PARENT, id_, screen->root,
                        static_cast<std::int16_t>(left), static_cast<std::int16_t>(top),
                        static_cast<std::uint16_t>(width), static_cast<std::uint16_t>(height),
                        static_cast<std::uint16_t>(border), XCB_WINDOW_CLASS_INPUT_OUTPUT,
                        screen->root_visual, 0, nullptr);
    ::xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, id_, XCB_ATOM_WM_NAME,
                          XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(title.size()),
                          title.data());
    ::xcb_map_window(connection_, id_);
    finish();
}

XWindow::~XWindow() {
    ::xcb_destroy_window(connection_, id_);
    finish();
    ::xcb_disconnect(connection_);
}

void XWindow::finish() const {
    std::free(
        ::xcb_get_input_focus_reply(connection_, ::xcb_get_input_focus(connection_), nullptr));
}

}  // namespace test_support
