#include "tarnix/addin/hooks.h"

#include "tarnix/addin/panels.h"
#include "tarnix/addin/state.h"
#include "tarnix/bom/behaviour/bom_command.h"
#include "tarnix/commands/projected_entities.h"
#include "tarnix/properties/edit_properties_command.h"

#include <Fusion/FusionAll.h>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

MyWorkspaceActivatedEventHandler workspaceActivatedEventHandler;
MyCommandStartingEventHandler commandStartingEventHandler;
MyCommandEndingEventHandler commandEndingEventHandler;
MyMarkingMenuHandler markingMenuHandler;

namespace {

/// The control of "Projected Entities As Construction" in the tools panel of the active workspace;
/// null where anything on the way to it is missing.
Ptr<CommandControl> projectedEntitiesControl() {
    const Ptr<Workspace> workspace = ui ? ui->activeWorkspace() : nullptr;
    const Ptr<ToolbarPanels> panels = workspace ? workspace->toolbarPanels() : nullptr;
    const Ptr<ToolbarPanel> panel =
        panels ? panels->itemById(toolsPanelId(workspace->id())) : nullptr;
    const Ptr<ToolbarControls> controls = panel ? panel->controls() : nullptr;
    return controls ? controls->itemById(kProjectedEntitiesCommand.id) : nullptr;
}

}  // namespace

void MyWorkspaceActivatedEventHandler::notify(const Ptr<WorkspaceEventArgs>& eventArgs) {
    static_cast<void>(addHelpdeskPanel(eventArgs->workspace()));
}

void MyCommandStartingEventHandler::notify(const Ptr<ApplicationCommandEventArgs>& /*eventArgs*/) {
    const Ptr<CommandControl> control = projectedEntitiesControl();
    const Ptr<Base> edited = control && app ? app->activeEditObject() : nullptr;
    if (edited) {
        control->isVisible(static_cast<bool>(Ptr<Sketch>(edited)));
    }
}

void MyCommandEndingEventHandler::notify(const Ptr<ApplicationCommandEventArgs>& eventArgs) {
    if (eventArgs->commandId() == kBomCommand.id &&
        eventArgs->terminationReason() == adsk::core::CompletedTerminationReason) {
        eventArgs->commandDefinition()->execute();
    }
}

void MyMarkingMenuHandler::notify(const Ptr<MarkingMenuEventArgs>& eventArgs) {
    const Ptr<CommandDefinition> definition =
        ui->commandDefinitions()->itemById(kEditPropertiesCommand.id);
    if (!definition) {
        return;
    }
    const Ptr<LinearMarkingMenu> menu = eventArgs->linearMarkingMenu();
    if (menu) {
        menu->controls()->addCommand(definition, "", /*isBefore=*/true);
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
