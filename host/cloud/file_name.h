#pragma once

#include <filesystem>
#include <string>

namespace host {

/// Renames a file or folder of the user's data where it is. False, with the last error set under
/// `operation`, for a name that some file system cannot have, for one that is in use, and where
/// the system refuses.
bool renameInFolder(const std::filesystem::path& from, const std::filesystem::path& to,
                    const std::string& operation);

/// Whether every file system can have this as the name of a file.
bool isFileName(const std::string& name);

}  // namespace host
