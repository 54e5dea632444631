#pragma once

#include "host/session/session.h"

#include <filesystem>

namespace refusal {

/// The settings file of a session.
std::filesystem::path settingsFileOf(const host::Session& session);

/// Closes the dialog that may be open, and stops the add-in.
void endSession(host::Session& session);

}  // namespace refusal
