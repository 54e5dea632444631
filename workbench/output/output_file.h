#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// Writes a file so that it is there whole or not at all: into a new one beside it, which then
/// takes its name. Makes the folder if it is missing. Throws a `Failure`.
void writeWhole(const std::filesystem::path& file, const std::string& content);

}  // namespace workbench
