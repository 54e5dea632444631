#pragma once

#include "host/application/application_object.h"

/// What every action of the user begins and ends with.
namespace host {

/// The running host; throws a `MisuseError` where none runs.
ApplicationObject& runningApplication();

/// The open dialog; throws a `MisuseError` where none is open.
ui::CommandObject& shownDialog();

/// One action of the user: the count of commands that start each other begins again, and the
/// commands that are requested during the action start at its end. Throws a `MisuseError` while a
/// command is at work.
class UserAction {
public:
    UserAction();
    UserAction(const UserAction&) = delete;
    UserAction& operator=(const UserAction&) = delete;

    [[nodiscard]] ui::UserInterfaceObject& ui() const { return application_->ui(); }
    [[nodiscard]] ui::CommandRunner& runner() const { return ui().runner(); }

    /// @name What the module answers with its handlers
    /// These throw an `EndlessError` where that does not end.
    /// @{

    /// Starts a command.
    void request(const core::Ptr<ui::CommandDefinitionObject>& definition) const;

    /// Reports that an input was changed.
    void changed(ui::InputState& input) const;

    /// Reports that another tab shows.
    void tabChanged() const;

    /// Starts the requested commands, has custom events handled that were fired, and stops the
    /// module if it asked for that: the last step of each action.
    void finish();
    /// @}

private:
    core::Ptr<ApplicationObject> application_;
};

}  // namespace host
