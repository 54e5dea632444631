#include "workbench/cli/common_options.h"
#include "workbench/cli/completion.h"
#include "workbench/commands/commands.h"

#include <iostream>

namespace workbench {
namespace {

struct CompletionOptions {
    std::string shell;
    const CLI::App* program = nullptr;
};

/// Prints the script that completes the command line in a shell.
void runCompletion(const CompletionOptions& options) {
    const CommandSummary program = summarize(*options.program);
    const std::string script = options.shell == "bash"  ? bashCompletion(program)
                               : options.shell == "zsh" ? zshCompletion(program)
                                                        : fishCompletion(program);
    std::cout << script;
}

}  // namespace

void addCompletionCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "completion", "Print a script that completes the command line in a shell");
    CompletionOptions& options = optionsFor(command, runCompletion);
    options.program = &program;
    command.add_option("SHELL", options.shell, "The shell")
        ->required()
        ->check(CLI::IsMember({"bash", "zsh", "fish"}))
        ->type_name("");
}

}  // namespace workbench
