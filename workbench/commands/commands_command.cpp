#include "workbench/cli/common_options.h"
#include "workbench/commands/commands.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/dialog_json.h"
#include "workbench/output/dialog_text.h"

#include <iostream>

namespace workbench {
namespace {

struct CommandsOptions {
    std::string format = "text";
    AddinChoice addin;
};

/// Prints what the toolbars hold once the add-in has started.
void runCommands(const CommandsOptions& options) {
    DialogSession dialog(options.addin);
    host::ToolbarView toolbars;
    dialog.act([&](host::Session&) { toolbars = host::readToolbars(); });
    std::cout << (options.format == "json" ? asJson(toolbars) : asText(toolbars));
}

}  // namespace

void addCommandsCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "commands", "List workspaces, panels and commands of the host with the add-in in it");
    CommandsOptions& options = optionsFor(command, runCommands);
    addFormat(command, options.format, {"text", "json"});
    addAddin(command, options.addin);
}

}  // namespace workbench
