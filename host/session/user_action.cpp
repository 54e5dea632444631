#include "host/session/user_action.h"

#include "host/session/user_actions.h"
#include "host/ui/inputs/reachability.h"

namespace host {

ApplicationObject& runningApplication() {
    const core::Ptr<ApplicationObject> application = ApplicationObject::current();
    if (!application) {
        throw MisuseError("no host runs: start one first");
    }
    return *application;
}

UserAction::UserAction() : application_(&runningApplication()) {
    if (runner().isBusy()) {
        throw MisuseError("a command is at work: wait until it has answered");
    }
    runner().beginUserAction();
}

ui::CommandObject& shownDialog() {
    const core::Ptr<ui::CommandObject>& active = runningApplication().ui().runner().active();
    if (!active || !active->isShown()) {
        throw MisuseError("no dialog is open: press the button of a command first");
    }
    return *active;
}

ui::InputState& usable(const core::Ptr<core::CommandInput>& input, const std::string& action) {
    ui::InputState* state = ui::InputState::of(input);
    if (state == nullptr) {
        throw MisuseError("cannot " + action + ": there is no such input");
    }
    const std::string why = whyUnusable(input);
    if (!why.empty()) {
        throw MisuseError("cannot " + action + " " + ui::describe(*state) + ": " + why);
    }
    return *state;
}

std::string whyUnusable(const core::Ptr<core::CommandInput>& input) {
    const ui::InputState* state = ui::InputState::of(input);
    if (state == nullptr) return "there is no such input";
    const std::string why = ui::whyUnreachable(*state);
    return why.empty() && !state->enabled ? "it is not enabled" : why;
}

}  // namespace host
