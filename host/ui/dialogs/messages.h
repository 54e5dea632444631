#pragma once

#include "host/base/api_names.h"

#include <Core/Enums.h>

#include <functional>
#include <string>
#include <vector>

/// The messages that a module shows, kept and answered in place of a person.
namespace host {

/// A message box that was shown.
struct Message {
    std::string text;
    std::string title;  ///< as it was given; where it is empty a person sees the module's name
    core::MessageBoxButtonTypes buttons = core::OKButtonType;
    core::MessageBoxIconTypes icon = core::NoIconIconType;
    core::DialogResults answer = core::DialogOK;  ///< what was pressed

    bool operator==(const Message&) const = default;
};

/// What was shown since the host started or since `clearMessages`, oldest first.
const std::vector<Message>& messages();
void clearMessages();

/// Answers the next message that nobody answered yet; an answer that it has no button for is listed
/// as a misuse, and its first button is pressed.
void answerNextMessage(core::DialogResults answer);

/// Asks `ask` for the answer of each message that has none waiting; null asks nobody, and the first
/// button is pressed. `ask` runs while the module waits.
void askForAnswers(std::function<core::DialogResults(const Message&)> ask);

namespace ui {

/// Shows a message: keeps it, and returns its answer.
core::DialogResults showMessage(Message message);

/// Forgets messages, answers and whom to ask.
void resetMessages();

}  // namespace ui
}  // namespace host
