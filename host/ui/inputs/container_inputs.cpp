#include "host/ui/inputs/container_inputs.h"

#include "host/ui/commands/command.h"

namespace host::ui {

ContainerState::ContainerState(const InputOrigin& origin, InputKind inputKind)
    : InputState(origin, inputKind),
      inside_(make<CommandInputsObject>(origin.owner->owningCommand(), this)) {}

void ContainerState::retire() {
    InputState::retire();
    inside_->dispose();
}

core::Ptr<core::CommandInputs> TabCommandInputObject::children() const {
    if (closed<"TabCommandInput::children">(*this)) return {};
    return core::Ptr<core::CommandInputs>(inside());
}

bool TabCommandInputObject::isActive() const {
    if (closed<"TabCommandInput::isActive">(*this)) return {};
    return command()->activeTab() == this;
}

bool TabCommandInputObject::activate() {
    if (closed<"TabCommandInput::activate">(*this)) return {};
    command()->activeTab(this);
    return true;
}

core::Ptr<core::CommandInputs> GroupCommandInputObject::children() const {
    if (closed<"GroupCommandInput::children">(*this)) return {};
    return core::Ptr<core::CommandInputs>(inside());
}

}  // namespace host::ui
