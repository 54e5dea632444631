#pragma once

#include "host/application/application.h"

#include <string>

/// How every user action begins and ends.
namespace host {

/// The application at which the user acts; throws a `MisuseError` where no host runs.
ApplicationObject& runningApplication();

/// The open dialog; throws a `MisuseError` where none is open.
ui::CommandObject& shownDialog();

/// One action of the user: from here on commands may start again as often as allowed, and those
/// that were requested during the action start at its end. Throws a `MisuseError` while a command
/// is at work.
class UserAction {
public:
    UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;

    [[nodiscard]] ui::UserInterfaceObject& ui() const { return application_->ui(); }
    [[nodiscard]] ui::CommandRunner& runner() const { return ui().runner(); }

    /// Starts what was requested: the last step of each action.
    void finish() { runner().drainRequests(); }

private:
    adsk::core::Ptr<ApplicationObject> application_;
};

/// The state of an input that the user can use now; throws a `MisuseError` that begins with
/// `action` where there is none.
ui::InputState& usable(const adsk::core::Ptr<adsk::core::CommandInput>& input,
                       const std::string& action);

}  // namespace host
