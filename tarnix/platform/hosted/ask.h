#pragma once

#include "tarnix/platform/process_function.h"

#include <StandIn/Process.h>

namespace tarnix::platform {

/// Asks a function of the process by its name; `NotHandled` where the process has none. `Function`
/// is the type of its address.
template <class Function, class... Arguments>
StandInAnswer askProcess(const char* name, Arguments... arguments) {
    const auto function = reinterpret_cast<Function>(processFunction(name));
    return function != nullptr ? function(arguments...) : StandInAnswer::NotHandled;
}

}  // namespace tarnix::platform
