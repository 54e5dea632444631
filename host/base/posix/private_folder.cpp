#include "host/base/private_folder.h"

#include <sys/stat.h>

#include <cerrno>

namespace host {

std::error_code makePrivateFolder(const std::filesystem::path& folder) {
    if (::mkdir(folder.c_str(), 0700) == 0) {
        return {};
    }
    return {errno, std::generic_category()};
}

}  // namespace host
