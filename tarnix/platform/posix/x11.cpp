#include "tarnix/platform/posix/x11.h"

namespace tarnix::platform::x11 {

Display::Display() {
    int wanted = 0;
    connection_ = ::xcb_connect(/*displayname=*/nullptr, &wanted);
    if (::xcb_connection_has_error(connection_) != 0) {
        return;
    }
    xcb_screen_iterator_t screens = ::xcb_setup_roots_iterator(::xcb_get_setup(connection_));
    for (; screens.rem > 1 && wanted > 0; --wanted) {
        ::xcb_screen_next(&screens);
    }
    screen_ = screens.rem > 0 ? screens.data : nullptr;
}

Display::~Display() { ::xcb_disconnect(connection_); }

}  // namespace tarnix::platform::x11
