#pragma once

#include "workbench/cli/addin_choice.h"

#include "host/session/session.h"

#include <filesystem>
#include <memory>
#include <string>

/// The add-in's session of the user who runs the program.
namespace workbench {

/// The folder with all that the program keeps for this user: the add-in's copy with its settings.
/// Throws a `Failure` where the system names no place for it.
std::filesystem::path userFolder();

/// Whether the add-in leaves the process with its session, so that nothing of it stays on disk. Not
/// where leaks are looked for: a report has to name its functions.
inline constexpr bool kUnloadsAddin = WORKBENCH_UNLOADS_ADDIN;

/// The folder of the named add-in, of the one beside the program for an empty name.
std::filesystem::path addinFolder(const std::string& named);

/// What a session is started with that works in the data home itself, for what is to stay there.
host::SessionOptions userSession(const AddinChoice& choice);

/// Starts a session. Throws a `Failure` that says why it cannot be started.
std::unique_ptr<host::Session> startSession(const host::SessionOptions& options);

/// Calls the add-in's `run`. Throws a `Failure` when that does not succeed.
void runAddin(host::Session& session);

/// Why a step could not be done: what the add-in threw before, else the obstacle.
std::string explain(const host::Session& session, const std::string& obstacle);

}  // namespace workbench
