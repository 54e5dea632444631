#include "host/ui/commands/command_events.h"

namespace host::ui {

bool ApplicationCommandEventArgsObject::isCanceled(bool value) {
    constexpr const char* kOperation = "ApplicationCommandEventArgs::isCanceled";
    if (refused<"ApplicationCommandEventArgs::isCanceled">()) return {};
    if (!cancellable_) {
        return misuse(kOperation, "only a command that is about to start can be kept from it");
    }
    cancelled_ = value;
    return true;
}

}  // namespace host::ui
