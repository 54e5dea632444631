#include "tarnix/addin/hooks.h"

#include "tarnix/addin/state.h"

namespace tarnix {

using adsk::core::ApplicationCommandEvent;
using adsk::core::ApplicationCommandEventArgs;
using adsk::core::Command;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::MarkingMenuEvent;
using adsk::core::MarkingMenuEventArgs;
using adsk::core::Ptr;
using adsk::core::WorkspaceEvent;
using adsk::core::WorkspaceEventArgs;

OnExecuteEventHandler onExecuteEventHandler;
CommandCreatedEventHandler commandCreatedEventHandler;
MyWorkspaceActivatedEventHandler workspaceActivatedEventHandler;
MyCommandStartingEventHandler commandStartingEventHandler;
MyCommandEndingEventHandler commandEndingEventHandler;
MyMarkingMenuHandler markingMenuHandler;

void MyWorkspaceActivatedEventHandler::notify(const Ptr<WorkspaceEventArgs>& /*eventArgs*/) {}

void MyCommandStartingEventHandler::notify(const Ptr<ApplicationCommandEventArgs>& /*eventArgs*/) {}

void MyCommandEndingEventHandler::notify(const Ptr<ApplicationCommandEventArgs>& /*eventArgs*/) {}

void MyMarkingMenuHandler::notify(const Ptr<MarkingMenuEventArgs>& /*eventArgs*/) {}

void CommandCreatedEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    if (command) {
        command->execute()->add(&onExecuteEventHandler);
    }
}

bool attachHooks() {
    const Ptr<MarkingMenuEvent> menuDisplaying = ui->markingMenuDisplaying();
    if (!menuDisplaying) {
        return false;
    }
    menuDisplaying->add(&markingMenuHandler);

    const Ptr<WorkspaceEvent> workspaceActivated = ui->workspaceActivated();
    if (!workspaceActivated || !workspaceActivated->add(&workspaceActivatedEventHandler)) {
        return false;
    }

    const Ptr<ApplicationCommandEvent> commandStarting = ui->commandStarting();
    if (!commandStarting) {
        return false;
    }
    commandStarting->add(&commandStartingEventHandler);

    const Ptr<ApplicationCommandEvent> commandTerminated = ui->commandTerminated();
    if (!commandTerminated) {
        return false;
    }
    commandTerminated->add(&commandEndingEventHandler);
    return true;
}

}  // namespace tarnix
