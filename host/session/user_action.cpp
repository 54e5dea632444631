#include "host/session/user_action.h"

#include "host/application/main_queue.h"
#include "host/base/misuse.h"

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

void UserAction::finish() {
    runner().drainRequests();
    if (application_->customEvents().deliver()) {
        runner().drainRequests();
    }
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
