#pragma once

#include "workbench/cli/exit_code.h"

namespace workbench {

/// The exit status of a run that does its work to the end.
ExitCode finalStatus();

/// To be called by a command that found something that its caller wants to see in the status.
void setFinalStatus(ExitCode status);

}  // namespace workbench
