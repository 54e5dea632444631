#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace host {

/// SHA-256 of some bytes, as 64 lower-case hexadecimal digits.
std::string sha256Of(std::string_view bytes);

/// The same of a file's content; an empty string where it cannot be read.
std::string sha256OfFile(const std::filesystem::path& file);

}  // namespace host
