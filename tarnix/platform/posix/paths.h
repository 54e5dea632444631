#pragma once

#include <string>

namespace tarnix::platform {

/// A path in Windows terms as this system spells it.
std::string nativePath(std::string path);

/// A path of this system in Windows terms.
std::string windowsPath(std::string path);

}  // namespace tarnix::platform
