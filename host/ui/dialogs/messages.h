#pragma once

#include "host/base/api_names.h"

#include <Core/Enums.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// The messages that a module shows, recorded and answered in place of the user.
namespace host {

/// A message box that was shown.
struct Message {
    std::string text;
    std::string title;  ///< as it was given; where it is empty the user sees the module's name
    core::MessageBoxButtonTypes buttons = core::OKButtonType;
    core::MessageBoxIconTypes icon = core::NoIconIconType;
    core::DialogResults answer = core::DialogOK;  ///< what was pressed

    bool operator==(const Message&) const = default;
};

namespace ui {

/// The messages of one host, a part of its state.
struct MessageLog {
    std::vector<Message> shown;                              ///< oldest first
    std::deque<core::DialogResults> answers;                 ///< of the messages to come
    std::function<core::DialogResults(const Message&)> ask;  ///< where no answer waits
};

/// Shows a message: records it, and returns its answer. Without one, and without a host, the first
/// button is pressed; so it is for an answer that the message has no button for, which is a misuse.
core::DialogResults showMessage(Message message);

}  // namespace ui
}  // namespace host
