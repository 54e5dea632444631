#include "tarnix/platform/posix/file_kind.h"

#include <sys/stat.h>
#include <unistd.h>

namespace tarnix::platform {

mode_t modeOf(const std::string& nativePath) {
    struct stat state = {};
    return ::lstat(nativePath.c_str(), &state) == 0 ? state.st_mode : 0;
}

bool isLinkToFolder(const std::string& nativePath) {
    struct stat target = {};
    return S_ISLNK(modeOf(nativePath)) && ::stat(nativePath.c_str(), &target) == 0 &&
           S_ISDIR(target.st_mode);
}

bool removeFile(const std::string& nativePath) {
    const mode_t mode = modeOf(nativePath);
    const bool isReadOnly = S_ISREG(mode) && (mode & S_IWUSR) == 0;
    return mode != 0 && !isReadOnly && !isLinkToFolder(nativePath) &&
           ::unlink(nativePath.c_str()) == 0;
}

}  // namespace tarnix::platform
