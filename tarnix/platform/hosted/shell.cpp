#include "tarnix/platform/shell.h"

#include "tarnix/platform/hosted/ask.h"
#include "tarnix/platform/native.h"

namespace tarnix::platform {

bool openWithShell(const std::string& target, ShellTarget kind) {
    using Question = decltype(&standin_openWithShell);
    const StandInAnswer answer = askProcess<Question>("standin_openWithShell", target.c_str());
    if (answer == StandInAnswer::NotHandled) {
        return native::openWithShell(target, kind);
    }
    return answer == StandInAnswer::Done;
}

}  // namespace tarnix::platform
