#pragma once

namespace CLI {
class App;
}

/// The subcommands of the program.
///
/// Each is a source of its own, `<name>_command.cpp`, which holds its options, what it does, and
/// the function that adds it to the command line. What it does runs at the end of parsing; it
/// throws a `Failure` to end the program with another exit status than success.
namespace workbench {

void addBomCommand(CLI::App& program);
void addPartsCommand(CLI::App& program);
void addInfoCommand(CLI::App& program);
void addHelpdeskCommand(CLI::App& program);
void addPropertiesCommand(CLI::App& program);
void addUserPropertiesCommand(CLI::App& program);
void addConfigureCommand(CLI::App& program);
void addMoveToOriginCommand(CLI::App& program);
void addProjectToConstructionCommand(CLI::App& program);
void addOpenLocalCommand(CLI::App& program);
void addCommandsCommand(CLI::App& program);
void addDialogCommand(CLI::App& program);
void addRunCommand(CLI::App& program);
void addServeCommand(CLI::App& program);
void addCacheCommand(CLI::App& program);
void addCompareCommand(CLI::App& program);
void addCompletionCommand(CLI::App& program);
void addManualCommand(CLI::App& program);

/// All of them, in the order of `--help`.
inline constexpr void (*kAddCommand[])(CLI::App& program) = {addBomCommand,
                                                             addPartsCommand,
                                                             addCompareCommand,
                                                             addInfoCommand,
                                                             addHelpdeskCommand,
                                                             addPropertiesCommand,
                                                             addUserPropertiesCommand,
                                                             addConfigureCommand,
                                                             addMoveToOriginCommand,
                                                             addProjectToConstructionCommand,
                                                             addOpenLocalCommand,
                                                             addCommandsCommand,
                                                             addDialogCommand,
                                                             addRunCommand,
                                                             addServeCommand,
                                                             addCacheCommand,
                                                             addCompletionCommand,
                                                             addManualCommand};

}  // namespace workbench
