#pragma once

#include <filesystem>
#include <string>

namespace test_support {

/// All bytes of a file; empty if it cannot be read.
std::string readFile(const std::filesystem::path& file);

/// Writes these bytes to a file, replacing what was there.
void writeFile(const std::filesystem::path& file, const std::string& bytes);

}  // namespace test_support
