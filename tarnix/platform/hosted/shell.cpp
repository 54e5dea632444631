#include "tarnix/platform/shell.h"

#include "tarnix/platform/hosted/ask.h"
#include "tarnix/platform/native.h"

namespace tarnix::platform {
namespace {

StandInTarget standInTarget(ShellTarget kind) {
    switch (kind) {
        case ShellTarget::Folder:
            return StandInTarget::Folder;
        case ShellTarget::Address:
            return StandInTarget::Address;
        default:
            return StandInTarget::File;
    }
}

}  // namespace

bool openWithShell(const std::string& target, ShellTarget kind) {
    using Question = decltype(&standin_openWithShell);
    const StandInAnswer answer =
        askProcess<Question>("standin_openWithShell", target.c_str(), standInTarget(kind));
    if (answer == StandInAnswer::NotHandled) {
        return native::openWithShell(target, kind);
    }
    return answer == StandInAnswer::Done;
}

}  // namespace tarnix::platform
