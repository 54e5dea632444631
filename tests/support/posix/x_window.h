#pragma once

#include <xcb/xcb.h>

#include <string>

namespace test_support {

/// A window on the X display of the environment, from its making to its end.
class XWindow {
public:
    /// Shows a window with this title. Left and top are the place of its border's corner; the size
    /// is that of its inside.
    XWindow(const std::string& title, int left, int top, int width, int height, int border);
    XWindow(const XWindow&) = delete;
    XWindow& operator=(const XWindow&) = delete;
    ~XWindow();

    [[nodiscard]] xcb_connection_t* connection() const { return connection_; }
    [[nodiscard]] xcb_window_t id() const { return id_; }

    /// Waits until the server has done what it was asked.
    void finish() const;

private:
    xcb_connection_t* connection_;
    xcb_window_t id_;
};

}  // namespace test_support
