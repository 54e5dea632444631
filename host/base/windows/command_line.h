#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace host {

/// A program with its arguments (in UTF-8) as one line, as `CommandLineToArgvW` and the C library
/// take it apart again.
std::wstring commandLine(const std::filesystem::path& program,
                         const std::vector<std::string>& arguments);

}  // namespace host
