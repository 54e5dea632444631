#include "host/ui/inputs/container_state.h"

namespace host::ui {

ContainerState::ContainerState(const InputOrigin& origin, InputKind inputKind)
    : InputState(origin, inputKind),
      inside_(make<CommandInputsObject>(origin.owner->owningCommand(), this)) {}

void ContainerState::dispose() {
    InputState::dispose();
    inside_->dispose();
}

}  // namespace host::ui
