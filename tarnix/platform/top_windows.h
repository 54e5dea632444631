#pragma once

#include "tarnix/platform/screen.h"

#include <functional>
#include <string>

/// The windows on the screen.
namespace tarnix::platform {

/// A window that lies in no other.
struct TopWindow {
    std::string title;  ///< in UTF-8; empty for none

    /// Where it is without its frame; empty where the window is gone by now. To be called during
    /// the visit alone.
    std::function<ScreenArea()> clientArea;
};

/// Shows all top-level windows of the screen to `visit`, the foremost first, hidden ones among
/// them, until it returns false. What `visit` throws ends the visits and is thrown from here.
///
/// A process without a screen has no windows.
void visitTopWindows(const std::function<bool(const TopWindow&)>& visit);

}  // namespace tarnix::platform
