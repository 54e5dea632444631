#include "host/ui/dialogs/messages.h"

#include "host/base/gate.h"
#include "host/base/host_state.h"
#include "host/base/misuse.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

using namespace adsk::core;

/// The buttons of a message box, in their order; "Retry" answers as OK does.
std::vector<DialogResults> buttonsOf(MessageBoxButtonTypes type) {
    switch (type) {
        case OKCancelButtonType:
        case RetryCancelButtonType:
            return {DialogOK, DialogCancel};
        case YesNoButtonType:
            return {DialogYes, DialogNo};
        case YesNoCancelButtonType:
            return {DialogYes, DialogNo, DialogCancel};
        default:
            return {DialogOK};
    }
}

DialogResults boxAnswer(const Message& message, DialogResults first, ui::MessageLog& log) {
    if (!log.answers.empty()) {
        const DialogResults answer = log.answers.front();
        log.answers.pop_front();
        return answer;
    }
    if (!log.ask) return first;
    const gate::Outside outside;
    return log.ask(message);
}

}  // namespace

namespace ui {

DialogResults showMessage(Message message) {
    const std::vector<DialogResults> buttons = buttonsOf(message.buttons);
    auto* log = HostState::currentPart<MessageLog>();
    if (log == nullptr) return buttons.front();
    message.answer = boxAnswer(message, buttons.front(), *log);
    if (std::find(buttons.begin(), buttons.end(), message.answer) == buttons.end()) {
        // An exception thrown from here would end in the module that waits for the answer.
        misuse("UserInterface::messageBox", "the message \"" + message.text +
                                                "\" has no button for the answer " +
                                                std::to_string(message.answer));
        message.answer = buttons.front();
    }
    log->shown.push_back(message);
    return message.answer;
}

}  // namespace ui
}  // namespace host
