#pragma once

#include <string>

/// What the add-in does with files. Paths are in Windows terms on every system: backslashes, and
/// the system's 8-bit code page.
namespace tarnix::platform {

/// True if the file can be opened for reading.
bool canRead(const std::string& path);

/// Deletes a file. False when it was not there, is read-only or would not go; callers that only
/// want it out of the way need not look.
bool deleteFile(const std::string& path);

}  // namespace tarnix::platform
