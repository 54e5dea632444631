#include "host/ui/commands/command_events.h"

namespace host::ui {

bool ApplicationCommandEventArgsObject::isCanceled(bool value) {
    constexpr const char* kOperation = "ApplicationCommandEventArgs::isCanceled";
    if (closed<"isCanceled">(*this)) return {};
    if (!state_.cancellable) {
        return misuse(kOperation, "only a command that is about to start can be cancelled");
    }
    state_.cancelled = value;
    return true;
}

}  // namespace host::ui
