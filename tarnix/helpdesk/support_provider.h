#pragma once

#include "tarnix/text/command_texts.h"

namespace tarnix {

inline constexpr CommandTexts kOpenHelpdeskCommand = {.id = "QM_HD_openHelpdesk",
                                                      .name = "Go to Helpdesk",
                                                      .tooltip = "Open your Helpdesk web site",
                                                      .resourceFolder = "Resources/OpenHelpdesk"};

inline constexpr CommandTexts kOpenHelpCommand = {.id = "QM_HD_openHelp",
                                                  .name = "Open Help",
                                                  .tooltip = "Open User Guide",
                                                  .resourceFolder = "Resources/OpenHelp"};

/// Opens the web address of the support provider that the settings name, and shows the user a
/// message when that fails. Nothing happens in a workspace whose helpdesk panel lacks the control
/// of the Configuration command.
void openSupportProvider();

/// Opens the user guide beside the module, the Czech one where the host speaks Czech. A missing
/// guide, or a missing program for it, is not reported.
void openUserGuide();

}  // namespace tarnix
