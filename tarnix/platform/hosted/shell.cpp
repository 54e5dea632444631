#include "tarnix/platform/shell.h"

#include "tarnix/platform/native.h"
#include "tarnix/platform/process_function.h"

#include <StandIn/Process.h>

namespace tarnix::platform {

bool openWithShell(const std::string& target) {
    using Question = decltype(&standin_openWithShell);
    const auto ask = reinterpret_cast<Question>(processFunction("standin_openWithShell"));
    const StandInAnswer answer = ask != nullptr ? ask(target.c_str()) : StandInAnswer::NotMine;
    if (answer == StandInAnswer::NotMine) {
        return native::openWithShell(target);
    }
    return answer == StandInAnswer::Done;
}

}  // namespace tarnix::platform
