#pragma once

#include <filesystem>
#include <string>

namespace host {

/// The file that a path in UTF-8 names, found as Windows finds it: the path exactly as spelt,
/// else the one that differs from it only in the case of letters A to Z.
///
/// Throws `ImportError` where there is none, and where several differ so, with two of their names.
std::filesystem::path foundFile(const std::string& path);

}  // namespace host
