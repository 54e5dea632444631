#pragma once

#include "host/session/session.h"

#include <filesystem>
#include <memory>
#include <string>

/// The add-in's session of the user who runs the program.
namespace workbench {

/// The folder with all that the program keeps for this user: the add-in's copy with its settings.
/// Throws a `Failure` where the system names no place for it.
std::filesystem::path userFolder();

/// What a session of this user is started with; `addin` is the add-in's folder, empty for the one
/// beside the program.
host::SessionOptions userSession(const std::string& addin);

/// Starts a session. Throws a `Failure` that says why it cannot be started.
std::unique_ptr<host::Session> startSession(const host::SessionOptions& options);

/// Calls the add-in's `run`. Throws a `Failure` when that does not succeed.
void runAddin(host::Session& session);

/// Why a step could not be done: what the add-in threw before, else the obstacle.
std::string explain(const host::Session& session, const std::string& obstacle);

}  // namespace workbench
