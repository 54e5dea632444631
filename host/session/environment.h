#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

/// What a session changes about the process it runs in, and restores at its end.
namespace host::environment {

using Text = std::filesystem::path::string_type;

/// The variables by which this system finds the folder for temporary files.
std::vector<Text> temporaryFolderNames();

/// A variable of the process; nothing if it is not set.
std::optional<Text> variable(const Text& name);

/// Sets a variable, or takes it away.
void setVariable(const Text& name, const std::optional<Text>& value);

/// Where this program keeps the user's data between runs; empty if the system names no such place.
std::filesystem::path userDataFolder();

/// Where this program keeps what it can make again; empty if the system names no such place.
std::filesystem::path userCacheFolder();

/// The folder of the running program.
std::filesystem::path programFolder();

/// Shows the console window of the process again, if it has one that is hidden.
void showConsole();

}  // namespace host::environment
