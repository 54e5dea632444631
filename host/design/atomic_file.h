#pragma once

#include <filesystem>
#include <string_view>

namespace host {

/// Writes a file so that its name refers to the old content or the new one, whole, also
/// after a crash: the content goes into a new file beside it, down to the disk, which then takes
/// the name. A link is followed, and a file that is replaced hands its permissions on.
///
/// Throws `std::system_error` where that fails; the old file is then kept, and nothing new beside
/// it.
void writeFileAtomically(const std::filesystem::path& path, std::string_view content);

}  // namespace host
