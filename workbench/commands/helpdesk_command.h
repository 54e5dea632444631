#pragma once

#include <string>
#include <vector>

namespace workbench {

struct HelpdeskOptions {
    std::vector<std::string> actions;  ///< from `helpdeskActions`, in the order of the presses
    std::string addin;                 ///< folder of the add-in; empty: the one beside the program
    bool here = false;  ///< uses the person's own support folder, not that of the workbench
    bool open = false;  ///< lets the shell open what the add-in asks it to
};

/// The names of the helpdesk buttons on the command line.
std::vector<std::string> helpdeskActions();

/// Presses helpdesk buttons of the add-in in one host, and prints what came of it. Throws a
/// `Failure` when the add-in throws something, or cannot be used.
void runHelpdesk(const HelpdeskOptions& options);

}  // namespace workbench
