#include "tarnix/addin/main_commands.h"

#include "tarnix/addin/panels.h"
#include "tarnix/addin/state.h"
#include "tarnix/bom/behaviour/bom_command.h"
#include "tarnix/commands/move_to_origin.h"
#include "tarnix/commands/online_models.h"
#include "tarnix/commands/open_local_file.h"
#include "tarnix/commands/projected_entities.h"
#include "tarnix/commands/units_conversion.h"
#include "tarnix/properties/edit_properties_command.h"
#include "tarnix/settings/configuration_command.h"

#include <array>
#include <cstddef>
#include <new>

namespace tarnix {

using namespace adsk::core;

namespace {

template <class CreatedHandler>
std::unique_ptr<AddinCommand> makeCommand(const CommandTexts& texts) {
    return std::make_unique<AddinCommand>(app, texts, std::make_unique<CreatedHandler>());
}

void addToolsControl(AddinCommand& command, const std::string& workspaceId,
                     const std::string& positionId, bool isPromoted) {
    const Ptr<Workspace> workspace = ui->workspaces()->itemById(workspaceId);
    if (!workspace) {
        return;
    }
    const Ptr<ToolbarControls> controls =
        toolsPanel(workspace->toolbarPanels(), workspaceId)->controls();
    if (Ptr<CommandControl>(controls->itemById(command.id))) {
        return;
    }
    const Ptr<CommandControl> control =
        controls->addCommand(command.commandDefinition, positionId, /*isBefore=*/true);
    if (isPromoted) {
        control->isPromoted(true);
    }
    // A null handle would throw while the command goes.
    if (control) {
        command.controls.push_back(control);
    }
}

/// The object of Open local file has no owner: its command stays registered for as long as the host
/// runs, also after `stop`. The function has a name of its own, so that a leak report shows it.
void createOpenLocalFileForever() {
    static_cast<void>(makeCommand<OpenLocalFileCmdCreateHandler>(kOpenLocalFileCommand).release());
}

}  // namespace

MainCommands& mainCommands() {
    // Never destroyed: when the process ends, the host may be gone before this module's statics. In
    // static storage, so that nothing is left where the module is unloaded before.
    alignas(MainCommands) static std::array<std::byte, sizeof(MainCommands)> storage;
    static auto& commands = *new (storage.data()) MainCommands;
    return commands;
}

bool createCommands() {
    MainCommands& commands = mainCommands();
    commands.editPropertiesCmd =
        makeCommand<EditPropertiesCmdCreateHandler>(kEditPropertiesCommand);
    commands.bomCmd = makeCommand<BomCmdCreateEventHandler>(kBomCommand);
    commands.moveCompToOriginCmd =
        makeCommand<MoveCompToOriginCmdCreateHandler>(kMoveToOriginCommand);
    commands.projEntitAsConstrCmd =
        makeCommand<ProjEntitAsConstrCmdCreateHandler>(kProjectedEntitiesCommand);
    commands.unitsConversionCmd =
        makeCommand<UnitsConversionCmdCreateEventHandler>(kUnitsConversionCommand);
    commands.configTarnixCmd =
        makeCommand<ConfigTarnixCmdCreateEventHandler>(kConfigurationCommand);
    commands.onLineLibraryCmd = makeCommand<OnLineLibraryCreateEventHandler>(kOnlineModelsCommand);
    createOpenLocalFileForever();
    return true;
}

void destroyCommands() {
    MainCommands& commands = mainCommands();
    commands.editPropertiesCmd.reset();
    commands.moveCompToOriginCmd.reset();
    commands.projEntitAsConstrCmd.reset();
    commands.unitsConversionCmd.reset();
    commands.configTarnixCmd.reset();
    commands.bomCmd.reset();
    commands.onLineLibraryCmd.reset();
}

bool addCommandControls(const std::string& workspaceId) {
    addEditPropertiesControl(workspaceId, "");
    addBomControl(workspaceId, "");
    addMoveCompToOriginControl(workspaceId, "");
    addProjEntitAsConstrControl(workspaceId, "");
    addUnitsConversionControl(workspaceId, "");
    addConfigTarnixControl(workspaceId, "");
    return true;
}

void addEditPropertiesControl(const std::string& workspaceId, const std::string& positionId) {
    addToolsControl(*mainCommands().editPropertiesCmd, workspaceId, positionId,
                    /*isPromoted=*/true);
}

void addBomControl(const std::string& workspaceId, const std::string& positionId) {
    addToolsControl(*mainCommands().bomCmd, workspaceId, positionId, /*isPromoted=*/true);
}

void addMoveCompToOriginControl(const std::string& workspaceId, const std::string& positionId) {
    addToolsControl(*mainCommands().moveCompToOriginCmd, workspaceId, positionId,
                    /*isPromoted=*/false);
}

void addProjEntitAsConstrControl(const std::string& workspaceId, const std::string& positionId) {
    addToolsControl(*mainCommands().projEntitAsConstrCmd, workspaceId, positionId,
                    /*isPromoted=*/false);
}

void addUnitsConversionControl(const std::string& workspaceId, const std::string& positionId) {
    addToolsControl(*mainCommands().unitsConversionCmd, workspaceId, positionId,
                    /*isPromoted=*/false);
}

void addConfigTarnixControl(const std::string& workspaceId, const std::string& positionId) {
    const Ptr<Workspace> workspace = ui->workspaces()->itemById(workspaceId);
    if (!workspace) {
        return;
    }
    helpdeskPanel(workspace->toolbarPanels(), workspaceId)
        ->controls()
        ->addCommand(mainCommands().configTarnixCmd->commandDefinition, positionId,
                     /*isBefore=*/true);
}

}  // namespace tarnix
