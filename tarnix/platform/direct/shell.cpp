#include "tarnix/platform/shell.h"

#include "tarnix/platform/native.h"

namespace tarnix::platform {

bool openWithShell(const std::string& target, ShellTarget kind) {
    return native::openWithShell(target, kind);
}

}  // namespace tarnix::platform
