#pragma once

#include "tarnix/addin/addin_command.h"

#include <memory>
#include <string>

/// The eight main commands: their registration, and their controls in the add-in's panels.
namespace tarnix {

/// The objects of the main commands; each null before `run` and after `stop`.
///
/// Open local file is not among them: its object is never destroyed and its definition stays in the
/// host.
struct MainCommands {
    std::unique_ptr<AddinCommand> editPropertiesCmd;
    std::unique_ptr<AddinCommand> bomCmd;
    std::unique_ptr<AddinCommand> moveCompToOriginCmd;
    std::unique_ptr<AddinCommand> projEntitAsConstrCmd;
    std::unique_ptr<AddinCommand> unitsConversionCmd;
    std::unique_ptr<AddinCommand> configTarnixCmd;
    std::unique_ptr<AddinCommand> onLineLibraryCmd;
};

/// The one set of main commands of this module.
MainCommands& mainCommands();

/// Registers the eight commands with `app`; always true.
bool createCommands();

/// Takes the commands out of the host, each only if it is there.
void destroyCommands();

/// Calls the six operations below for one workspace, each at the end of its panel; always true.
bool addCommandControls(const std::string& workspaceId);

// Each places the control of its command in a panel of a workspace, which is made if it is missing.
// A workspace that the host does not know is skipped. All but the last look for a control that
// is there already; the last adds one each time, and that one goes with its panel.
void addEditPropertiesControl(const std::string& workspaceId, const std::string& positionId);
void addBomControl(const std::string& workspaceId, const std::string& positionId);
void addMoveCompToOriginControl(const std::string& workspaceId, const std::string& positionId);
void addProjEntitAsConstrControl(const std::string& workspaceId, const std::string& positionId);
void addUnitsConversionControl(const std::string& workspaceId, const std::string& positionId);
void addConfigTarnixControl(const std::string& workspaceId, const std::string& positionId);

}  // namespace tarnix
