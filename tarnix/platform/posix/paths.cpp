#include "tarnix/platform/posix/paths.h"

#include <algorithm>

namespace tarnix::platform {

std::string nativePath(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    return path;
}

std::string windowsPath(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

}  // namespace tarnix::platform
