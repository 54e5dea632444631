#include "host/session/user_action.h"

#include "host/application/main_queue.h"
#include "host/base/misuse.h"
#include "host/session/endless_error.h"

#include <functional>

namespace host {
namespace {

/// What the commands refuse once the action was possible is to go on for ever.
void untilItEnds(const std::function<void()>& work) {
    try {
        work();
    } catch (const EndlessError&) {
        throw;
    } catch (const MisuseError& error) {
        throw EndlessError(error.what());
    }
}

}  // namespace

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

void UserAction::request(const core::Ptr<ui::CommandDefinitionObject>& definition) const {
    untilItEnds([&] { runner().request(definition); });
}

void UserAction::changed(ui::InputState& input) const {
    untilItEnds([&] { runner().changed(input); });
}

void UserAction::tabChanged() const {
    untilItEnds([&] { runner().tabChanged(); });
}

void UserAction::finish() {
    untilItEnds([&] {
        runner().drainRequests();
        if (application_->customEvents().deliver()) {
            runner().drainRequests();
        }
    });
    stopIfRequested();
}

ui::CommandObject& shownDialog() {
    const core::Ptr<ui::CommandObject>& active = runningApplication().ui().runner().active();
    if (!active || !active->state().shown) {
        throw MisuseError("no dialog is open: press the button of a command first");
    }
    return *active;
}

}  // namespace host
