#pragma once

#include "workbench/cli/command_summary.h"

#include <string>

/// Scripts that complete the command line in a shell. Each is a whole file, to be sourced or to be
/// put where the shell looks for completions.
namespace workbench {

std::string bashCompletion(const CommandSummary& program);
std::string zshCompletion(const CommandSummary& program);
std::string fishCompletion(const CommandSummary& program);

}  // namespace workbench
