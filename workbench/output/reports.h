#pragma once

#include "workbench/cli/exit_code.h"

#include "host/session/session.h"

#include <cstddef>
#include <filesystem>
#include <ostream>
#include <string>
#include <vector>

/// Lines about what happened, in the same words for all subcommands. With "--quiet" only what was
/// saved and what failed is reported.
namespace workbench {

/// Where a design was saved.
void reportSaved(std::ostream& stream, const std::filesystem::path& file);

/// What the add-in asked the shell to open, each once and as this system spells it, and whether it
/// was opened: where `mayOpen` is false the line says how to let it.
void reportShellRequests(std::ostream& stream, const std::vector<std::string>& targets,
                         bool mayOpen);

/// What the add-in showed to its user, from the index `since` on; on stderr.
void reportMessages(const std::vector<host::Message>& messages, std::size_t since = 0);

/// Ends the program with a `Failure` where there are obstacles: all but the last are reported on
/// stderr, and the last is its line.
void refuseObstacles(ExitCode code, const std::vector<std::string>& obstacles);

/// Sends on what was printed. Throws a `Failure` where it could not be written: nothing is to be
/// kept then.
void flushOutput();

/// What a reader had to say; on stderr.
void reportWarnings(const std::vector<host::ReadingWarning>& warnings);

/// Files or steps that failed, a line for each; on stderr.
void reportFailures(const std::vector<std::string>& lines);

}  // namespace workbench
