#include "workbench/commands/helpdesk_options.h"

#include "workbench/cli/common_options.h"

#include <CLI/CLI.hpp>

namespace workbench {
namespace {

constexpr const char* kFooter =
    "Actions:\n"
    "  open            make the support folder, and ask to open it\n"
    "  capture-screen  save a picture of the screen in it\n"
    "  capture-host    save a picture of the window titled \"Autodesk Fusion 360\" in it\n"
    "  system-info     write SystemInfo.txt in it\n"
    "  zip             pack its files into helpdesk.zip in it\n"
    "  clear           delete it; only behind open or zip, which let the add-in remember it\n"
    "  guide           ask to open the user guide\n"
    "  go              ask to open the support provider's address\n"
    "What was done before an action that fails stays. Without a display there are no pictures.";

}  // namespace

CLI::App* addHelpdesk(CLI::App& program, HelpdeskOptions& options) {
    CLI::App* command = program.add_subcommand(
        "helpdesk", "Press helpdesk buttons of the add-in, in this order and in one host");
    command->add_option("ACTION", options.actions, "What to press")
        ->required()
        ->check(CLI::IsMember(helpdeskActions()))
        ->type_name("");
    command->add_flag("--here", options.here,
                      "Use your own support folder, not that of the workbench");
    command->add_flag("--open", options.open, "Let the add-in open files and addresses");
    addAddin(*command, options.addin);
    command->footer(kFooter);
    return command;
}

}  // namespace workbench
