#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tarnix::platform::x11 {

/// What the server's library returns belongs to the caller.
template <class Reply>
struct Free {
    void operator()(Reply* reply) const { std::free(reply); }
};

template <class Reply>
using Owned = std::unique_ptr<Reply, Free<Reply>>;

/// A connection to the display that the environment names.
class Display {
public:
    Display();
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;
    ~Display();

    /// False where there is no display.
    explicit operator bool() const { return screen_ != nullptr; }

    [[nodiscard]] xcb_connection_t* connection() const { return connection_; }

    /// The screen that the environment names; all monitors together.
    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }

private:
    xcb_connection_t* connection_ = nullptr;
    xcb_screen_t* screen_ = nullptr;
};

}  // namespace tarnix::platform::x11
