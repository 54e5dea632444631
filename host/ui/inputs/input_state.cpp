#include "host/ui/inputs/input_state.h"

#include "host/ui/commands/command_object.h"
#include "host/ui/inputs/command_inputs_object.h"
#include "host/ui/inputs/table_command_input_object.h"
#include "host/ui/inputs/table_lines.h"

#include <functional>

namespace host::ui {

InputState::InputState(const InputOrigin& origin, InputKind inputKind)
    : hash(static_cast<std::uint32_t>(std::hash<std::string>()(*origin.id))),
      serial(origin.owner->owningCommand()->nextSerial()),
      kind(inputKind),
      id_(*origin.id),
      name_(origin.name),
      owner_(origin.owner) {}

InputState* InputState::of(const core::Ptr<core::CommandInput>& input) {
    return dynamic_cast<InputState*>(input.get());
}

void InputState::dispose() {
    if (CommandObject* owning = command()) {
        owning->forget(*this);
    }
    if (inLine != nullptr) {
        inLine->table->remove(*this);
    }
    owner_ = nullptr;
}

CommandObject* InputState::command() const {
    return owner_ == nullptr ? nullptr : owner_->owningCommand();
}

InputState* InputState::parent() const {
    if (inLine != nullptr) return inLine->table;
    return owner_ == nullptr ? nullptr : owner_->parent();
}

void InputState::changedByCode(CodeChange what) {
    if (CommandObject* owning = command()) {
        owning->changedByCode(*this, what);
    }
}

const InputState::Extras& InputState::extras() const {
    static const Extras kNone;
    return extras_ ? *extras_ : kNone;
}

InputState::Extras& InputState::changeExtras() {
    if (!extras_) {
        extras_ = std::make_unique<Extras>();
    }
    return *extras_;
}

const std::string* InputState::shared(const std::string& text) const {
    return command()->strings().share(text);
}

core::Ptr<core::CommandInputs> ownerOf(const InputState& state) {
    return core::Ptr<core::CommandInputs>(state.owner());
}

core::Ptr<core::Command> commandOf(const InputState& state) {
    return core::Ptr<core::Command>(state.command());
}

void removeFromOwner(InputState& state) {
    if (CommandInputsObject* owner = state.owner()) {
        owner->remove(state);
    }
}

}  // namespace host::ui
