#pragma once

#include "host/design/reading_limits.h"

namespace step {

/// Limits the process itself, besides the watch that its starter keeps: no core files, crashes that
/// are seen as such, no more processor time than `seconds`, and no more address space than twice
/// the memory it may use.
void boundProcess(const host::ReadingLimits& limits);

/// Ends the program as soon as the other end of its standard input is closed, even while Open
/// CASCADE is at work. Does nothing when the input is no socket, as in a terminal.
void endWithStarter();

/// Ends the program at once. The static objects of Open CASCADE are left as they are: they go with
/// the process, and are neither worth the time to take down nor a leak to report.
[[noreturn]] void endProcess(int status);

}  // namespace step
