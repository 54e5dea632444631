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

std::string TabCommandInputObject::resourceFolder() const {
    if (closed<"TabCommandInput::resourceFolder">(*this)) return {};
    return resourceFolder_;
}

core::Ptr<core::CommandInputs> GroupCommandInputObject::children() const {
    if (closed<"GroupCommandInput::children">(*this)) return {};
    return core::Ptr<core::CommandInputs>(inside());
}

bool GroupCommandInputObject::isExpanded() const {
    if (closed<"GroupCommandInput::isExpanded">(*this)) return {};
    return expanded_;
}

bool GroupCommandInputObject::isExpanded(bool value) {
    if (closed<"GroupCommandInput::isExpanded">(*this)) return {};
    expanded_ = value;
    return true;
}

bool GroupCommandInputObject::isEnabledCheckBoxDisplayed() const {
    if (closed<"GroupCommandInput::isEnabledCheckBoxDisplayed">(*this)) return {};
    return checkBox_;
}

bool GroupCommandInputObject::isEnabledCheckBoxDisplayed(bool value) {
    if (closed<"GroupCommandInput::isEnabledCheckBoxDisplayed">(*this)) return {};
    checkBox_ = value;
    return true;
}

bool GroupCommandInputObject::isEnabledCheckBoxChecked() const {
    if (closed<"GroupCommandInput::isEnabledCheckBoxChecked">(*this)) return {};
    return checked_;
}

bool GroupCommandInputObject::isEnabledCheckBoxChecked(bool value) {
    if (closed<"GroupCommandInput::isEnabledCheckBoxChecked">(*this)) return {};
    checked_ = value;
    return true;
}

}  // namespace host::ui
