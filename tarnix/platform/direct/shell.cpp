#include "tarnix/platform/shell.h"

#include "tarnix/platform/native.h"

namespace tarnix::platform {

bool openWithShell(const std::string& target) { return native::openWithShell(target); }

}  // namespace tarnix::platform
