#include "host/ui/dialogs/messages.h"

#include "host/base/gate.h"
#include "host/base/misuse.h"

#include <algorithm>
#include <deque>
#include <utility>

namespace host {
namespace {

using namespace adsk::core;

struct Screen {
    std::vector<Message> shown;
    std::deque<DialogResults> answers;
    std::function<DialogResults(const Message&)> ask;
};

Screen& screen() {
    static auto* instance = new Screen;
    return *instance;
}

/// The buttons of a message box, the first one in front; "Retry" answers as OK does.
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

DialogResults answerOf(const Message& message, DialogResults first) {
    Screen& all = screen();
    if (!all.answers.empty()) {
        const DialogResults answer = all.answers.front();
        all.answers.pop_front();
        return answer;
    }
    if (!all.ask) return first;
    const gate::Outside outside;
    return all.ask(message);
}

}  // namespace

const std::vector<Message>& messages() { return screen().shown; }

void clearMessages() { screen().shown.clear(); }

void answerNextMessage(DialogResults answer) { screen().answers.push_back(answer); }

void askForAnswers(std::function<DialogResults(const Message&)> ask) {
    screen().ask = std::move(ask);
}

namespace ui {

DialogResults showMessage(Message message) {
    const std::vector<DialogResults> buttons = buttonsOf(message.buttons);
    message.answer = answerOf(message, buttons.front());
    if (std::find(buttons.begin(), buttons.end(), message.answer) == buttons.end()) {
        // UncaughtException from here it would end in the module that waits for the answer.
        misuse("UserInterface::messageBox", "the message \"" + message.text +
                                                "\" has no button for the answer " +
                                                std::to_string(message.answer));
        message.answer = buttons.front();
    }
    screen().shown.push_back(message);
    return message.answer;
}

void resetMessages() { screen() = {}; }

}  // namespace ui
}  // namespace host
