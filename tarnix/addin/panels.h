#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The two panels that the add-in adds to workspaces, and what they hold.
///
/// The tools panel holds the modelling commands and is in each workspace of `workspaceIds`. The
/// helpdesk panel holds the Configuration control and the eight helpdesk controls, and comes to
/// each workspace when it is first activated; outside `workspaceIds` it stays empty.
namespace tarnix {

/// The workspaces that get the add-in's panels at start.
extern const std::vector<std::string> workspaceIds;

/// The id of a workspace's tools panel. A panel's id is unique over all workspaces, so it carries
/// the workspace's id after a prefix.
std::string toolsPanelId(const std::string& workspaceId);

/// The tools panel in a workspace's collection, made if it is not there; null when refused.
adsk::core::Ptr<adsk::core::ToolbarPanel> toolsPanel(
    const adsk::core::Ptr<adsk::core::ToolbarPanels>& panels, const std::string& workspaceId);

/// The helpdesk panel in a workspace's collection, made if it is not there; null when refused.
adsk::core::Ptr<adsk::core::ToolbarPanel> helpdeskPanel(
    const adsk::core::Ptr<adsk::core::ToolbarPanels>& panels, const std::string& workspaceId);

/// Makes the tools panel of each of `workspaceIds` and fills it.
///
/// False when a workspace or its panel collection is missing; the panels so far stay.
bool addToolsPanels();

/// Makes the helpdesk panel of `workspace`, and fills it when it holds exactly one control, the
/// Configuration control.
///
/// False for no workspace and for one without a panel collection.
bool addHelpdeskPanel(const adsk::core::Ptr<adsk::core::Workspace>& workspace);

}  // namespace tarnix
