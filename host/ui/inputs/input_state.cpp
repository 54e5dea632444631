#include "host/ui/inputs/input_state.h"

#include "host/ui/commands/command_object.h"
#include "host/ui/inputs/command_inputs_object.h"
#include "host/ui/inputs/table_command_input_object.h"
#include "host/ui/inputs/table_lines.h"

#include <memory>
#include <utility>

namespace host::ui {

InputState::InputState(const InputOrigin& origin, InputKind inputKind)
    : serial(origin.owner->owningCommand()->nextSerial()),
      kind(inputKind),
      name_(origin.name),
      owner_(origin.owner),
      id_(*origin.id, origin.owner->owningCommand()->strings()) {}

InputState* InputState::of(const core::Ptr<core::CommandInput>& input) {
    return dynamic_cast<InputState*>(input.get());
}

InputState::~InputState() {
    if (keepsId_) {
        const std::unique_ptr<const std::string> kept(id_.stem());
    }
}

void InputState::keepId() {
    if (!std::exchange(keepsId_, true)) {
        id_ = InputId::of(*std::make_unique<std::string>(id_.text()).release());
    }
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
    const CommandObject* const owning = hasExtras_ ? command() : nullptr;
    return owning != nullptr ? owning->extrasOf(*this) : kNone;
}

InputState::Extras& InputState::changeExtras() {
    hasExtras_ = true;
    return command()->changeExtrasOf(*this);
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
