#include "tarnix/platform/files.h"

#include "tarnix/platform/posix/file_kind.h"
#include "tarnix/platform/posix/paths.h"

#include <filesystem>
#include <fstream>

namespace tarnix::platform {

bool canRead(const std::string& path) {
    const std::string native = nativePath(path);
    // A stream opens folders as well here.
    std::error_code ignored;
    return std::filesystem::is_regular_file(native, ignored) && std::ifstream(native).is_open();
}

bool deleteFile(const std::string& path) { return removeFile(nativePath(path)); }

}  // namespace tarnix::platform
