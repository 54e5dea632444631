#pragma once

#include <Core/CoreAll.h>

#include <vector>

/// The eight one-click helpdesk commands: definitions that share one created handler, and their
/// controls in the helpdesk panel.
namespace tarnix {

/// The definitions in the order of their buttons. `stop` deletes them in the host and keeps the
/// entries, so those of an earlier run come before those of this one.
extern std::vector<adsk::core::Ptr<adsk::core::CommandDefinition>> helpdeskCommandDefinitions;

/// Makes the eight definitions, or finds them, and subscribes the shared created handler to each.
///
/// False when a definition cannot be made, which the user is shown, or a subscription fails; what
/// was made so far stays.
bool createHelpdeskCommands();

/// Adds a control for each definition of this run, the first and the last one promoted.
void addHelpdeskControls(const adsk::core::Ptr<adsk::core::ToolbarControls>& controls);

/// True for a handle that is not null; for null the user is shown the host's last error.
bool checkReturn(const adsk::core::Ptr<adsk::core::Base>& handle);

}  // namespace tarnix
