#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// Writes a file whole or not at all: a new one beside it, which is then renamed. Creates a missing
/// folder. Throws a `Failure` where that fails.
void writeWhole(const std::filesystem::path& file, const std::string& content);

}  // namespace workbench
