#include "host/base/private_folder.h"

#include <windows.h>

namespace host {

std::error_code makePrivateFolder(const std::filesystem::path& folder) {
    // Folders below a user's own are the user's own already.
    if (::CreateDirectoryW(folder.c_str(), nullptr) != FALSE) {
        return {};
    }
    return {static_cast<int>(::GetLastError()), std::system_category()};
}

}  // namespace host
