#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// Looks whether a file can be STEP at all before a reader is started for it: it must be there, be
/// an ordinary file that may be read, and begin with "ISO-10303-21;" (after spaces, comments and
/// a byte order mark) or be marked as IGES in its first line. Throws `ImportError` with one line
/// that begins with the path as it was given.
///
/// Returns the absolute path: files that a STEP file refers to are found from there.
std::filesystem::path checkStepFile(const std::string& path);

/// The same for a file that messages call otherwise.
std::filesystem::path checkStepFile(const std::filesystem::path& file, const std::string& shown);

/// Identifies the contents of files by their size and a hash, so that a change can be detected.
std::string fingerprintOf(const std::vector<std::filesystem::path>& files);

}  // namespace host
