#pragma once

#include <string>

namespace tarnix::platform {

/// What a message box looks like, with the numbers of Windows. There is always one button, OK.
enum class MessageStyle : unsigned {
    Error = 16,        ///< with the stop icon
    Information = 64,  ///< with the information icon
};

/// Shows a message in a window without an owner, and waits until it is closed. Strings are
/// UTF-8.
void showMessageBox(const std::string& text, const std::string& title, MessageStyle style);

}  // namespace tarnix::platform
