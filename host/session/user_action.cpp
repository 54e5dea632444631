#include "host/session/user_action.h"

#include "host/session/user_actions.h"
#include "host/ui/inputs/reachability.h"

namespace host {
namespace ui {

ApplicationObject& hostAtHand() {
    const core::Ptr<ApplicationObject> application = ApplicationObject::current();
    if (!application) {
        throw MisuseError("no host runs: start one first");
    }
    return *application;
}

UserAction::UserAction() : application_(&hostAtHand()) {
    if (runner().isBusy()) {
        throw MisuseError("a command is at work: wait until it has answered");
    }
    runner().beginUserAction();
}

CommandObject& shownDialog() {
    const core::Ptr<CommandObject>& active = hostAtHand().ui().runner().active();
    if (!active || !active->isShown()) {
        throw MisuseError("no dialog is open: press the button of a command first");
    }
    return *active;
}

InputState& usable(const core::Ptr<core::CommandInput>& input, const std::string& action) {
    InputState* state = InputState::of(input);
    if (state == nullptr) {
        throw MisuseError("cannot " + action + ": there is no such input");
    }
    const std::string why = whyUnusable(input);
    if (!why.empty()) {
        throw MisuseError("cannot " + action + " " + describe(*state) + ": " + why);
    }
    return *state;
}

}  // namespace ui

std::string whyUnusable(const adsk::core::Ptr<adsk::core::CommandInput>& input) {
    const ui::InputState* state = ui::InputState::of(input);
    if (state == nullptr) return "there is no such input";
    const std::string why = ui::whyUnreachable(*state);
    return why.empty() && !state->enabled ? "it is not enabled" : why;
}

}  // namespace host
