#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace step {

/// Finds a file that a STEP file refers to by name: relative to the folder of the referring file,
/// else by its last part in that folder. Both separators count, and where no file has exactly the
/// name, one that differs only in the case of ASCII letters does. Only ordinary files are found.
std::optional<std::filesystem::path> findReferenced(const std::filesystem::path& folder,
                                                    const std::string& name);

}  // namespace step
