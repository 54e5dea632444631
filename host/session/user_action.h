#pragma once

#include "host/application/application.h"

#include <string>

/// What every action of a person begins and ends with.
namespace host::ui {

/// The host that a person acts at; raises a `MisuseError` where none runs.
Application& hostAtHand();

/// The open dialog; raises a `MisuseError` where none is open.
Command& shownDialog();

/// One action of a person: commands can start anew from here on, and those that were asked for
/// during the action start at its end. Raises a `MisuseError` while a command is at work.
class Acting {
public:
    Acting();
    Acting(const Acting&) = delete;
    Acting& operator=(const Acting&) = delete;

    [[nodiscard]] UserInterface& ui() const { return application_->ui(); }
    [[nodiscard]] CommandRunner& runner() const { return ui().runner(); }

    /// Starts what was asked for: the last thing of each action.
    void finish() { runner().settle(); }

private:
    adsk::core::Ptr<Application> application_;
};

/// The state of an input that a person can use now; raises a `MisuseError` that begins with
/// `action` where there is none.
InputState& usable(const core::Ptr<core::CommandInput>& input, const std::string& action);

}  // namespace host::ui
