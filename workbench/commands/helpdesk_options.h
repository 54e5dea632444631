#pragma once

#include "workbench/commands/helpdesk_command.h"

namespace CLI {
class App;
}

namespace workbench {

/// Adds the helpdesk command to the program's command line, which fills in `options`.
CLI::App* addHelpdesk(CLI::App& program, HelpdeskOptions& options);

}  // namespace workbench
