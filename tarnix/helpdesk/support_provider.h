#pragma once

namespace tarnix {

/// Opens the web address of the support provider that the settings name, and tells the user where
/// that cannot be done. Nothing happens in a workspace whose helpdesk panel lacks the control of
/// the Configuration command.
void openSupportProvider();

/// Opens the user guide beside the module, the Czech one where the host speaks Czech. A missing
/// guide, or a missing program for it, is not told.
void openUserGuide();

}  // namespace tarnix
