#include "workbench/cli/common_options.h"
#include "workbench/cli/man_page.h"
#include "workbench/commands/commands.h"

#include <iostream>

namespace workbench {
namespace {

struct ManualOptions {
    const CLI::App* program = nullptr;
};

/// Prints the man page.
void runManual(const ManualOptions& options) {
    std::cout << manPage(summarize(*options.program), options.program->version());
}

}  // namespace

void addManualCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand("manual", "Print the man page, as troff");
    ManualOptions& options = optionsFor(command, runManual);
    options.program = &program;
}

}  // namespace workbench
