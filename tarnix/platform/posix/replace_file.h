#pragma once

#include <string>
#include <string_view>

namespace tarnix::platform {

/// Writes a file atomically: whatever happens meanwhile, opening it finds the old content or the
/// new one and never half. The path is in this system's terms. A file that may
/// not be written keeps its content. Throws `_com_error` when it cannot be done.
void replaceFile(const std::string& path, std::string_view content);

}  // namespace tarnix::platform
