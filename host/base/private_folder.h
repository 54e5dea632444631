#pragma once

#include <filesystem>
#include <system_error>

namespace host {

/// Makes a folder that only this user may enter. An error where it cannot be made, or is there
/// already.
std::error_code makePrivateFolder(const std::filesystem::path& folder);

}  // namespace host
