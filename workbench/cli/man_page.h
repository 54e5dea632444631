#pragma once

#include "workbench/cli/command_summary.h"

#include <string>

namespace workbench {

/// The man page of the program, as troff with the man macros. `version` is name and version, for
/// its foot. It has no date, so that the same sources make the same page.
std::string manPage(const CommandSummary& program, const std::string& version);

}  // namespace workbench
