#pragma once

#include "host/application/application.h"

#include <string>

/// What every action of a person begins and ends with.
namespace host::ui {

/// The host that a person acts at; throws a `MisuseError` where none runs.
ApplicationObject& hostAtHand();

/// The open dialog; throws a `MisuseError` where none is open.
CommandObject& shownDialog();

/// One action of a person: commands can start again from here on, and those that were asked for
/// during the action start at its end. Throws a `MisuseError` while a command is at work.
class UserAction {
public:
    UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;

    [[nodiscard]] UserInterfaceObject& ui() const { return application_->ui(); }
    [[nodiscard]] CommandRunner& runner() const { return ui().runner(); }

    /// Starts what was asked for: the last thing of each action.
    void finish() { runner().drainRequests(); }

private:
    adsk::core::Ptr<ApplicationObject> application_;
};

/// The state of an input that a person can use now; throws a `MisuseError` that begins with
/// `action` where there is none.
InputState& usable(const core::Ptr<core::CommandInput>& input, const std::string& action);

}  // namespace host::ui
