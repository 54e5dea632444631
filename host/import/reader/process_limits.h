#pragma once

#include <cstddef>

namespace step {

/// Keeps the program itself within bounds, beside the watch that its starter keeps: no core files,
/// crashes that are seen as such, no endless computing, and no more address space than twice the
/// memory it may use.
void boundProcess(std::size_t seconds, std::size_t megabytes);

/// Ends the program as soon as nobody holds the other end of its standard input any more, even
/// while Open CASCADE is at work. Does nothing when that is no socket, as when a person runs the
/// program.
void endWithStarter();

/// Ends the program at once. The static objects of Open CASCADE are left as they are: they go with
/// the process, and are neither worth the time to take down nor a leak to report.
[[noreturn]] void endProcess(int status);

}  // namespace step
