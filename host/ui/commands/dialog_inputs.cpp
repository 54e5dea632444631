#include "host/ui/commands/dialog_inputs.h"

#include "host/base/documented_points.h"
#include "host/ui/commands/command_runner.h"
#include "host/ui/inputs/number_state.h"
#include "host/ui/inputs/selection_command_input_object.h"
#include "host/ui/inputs/slider_state.h"
#include "host/ui/user_interface_object.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

namespace host::ui {
namespace {

// Handlers that keep reacting to each other's changes would hang the session.
constexpr int kMostCodeChanges = 100000;

}  // namespace

void DialogInputs::begin() {
    valid_ = true;
    previewAccepts_ = false;
}

void DialogInputs::takeCurrentSelections() {
    const core::Ptr<CommandObject> command = runner_.active();
    SelectionList& selected = runner_.ui().state().selections->list;
    std::vector<core::Ptr<core::Base>> left = selected.entities();
    std::vector<
        std::pair<core::Ptr<SelectionCommandInputObject>, std::vector<core::Ptr<core::Base>>>>
        taken;
    for (InputState* each : command->inputs().ofKind(InputKind::Selection)) {
        SelectionCommandInputObject& input = selectionOf(each);
        if (!input.state().usesCurrentSelections || !input.visible) continue;
        const auto refused = std::stable_partition(
            left.begin(), left.end(), [&](const auto& entity) { return input.accepts(entity); });
        const auto count = static_cast<std::size_t>(refused - left.begin());
        if (count == 0 || count > input.maximum()) continue;
        taken.emplace_back(core::Ptr<SelectionCommandInputObject>(&input),
                           std::vector<core::Ptr<core::Base>>(left.begin(), refused));
        left.erase(left.begin(), refused);
    }
    if (taken.empty()) return;
    selected.clear();
    for (const auto& [input, entities] : taken) {
        for (const core::Ptr<core::Base>& each : entities) {
            input->take(each);
        }
    }
    for (const auto& [input, entities] : taken) {
        if (runner_.active() == command && input->isValid()) {
            notifyChanged(*input);
        }
    }
}

void DialogInputs::notifyChanged(InputState& input) {
    notifyInputChanged(input);
    notifyCodeChanges();
}

void DialogInputs::notifyInputChanged(InputState& input) {
    const core::Ptr<CommandObject> command = runner_.active();
    if (documentedPoints().validatesAnyTime) {
        validate();
    }
    const core::Ptr<core::CommandInputs> inputs(input.owner());
    const std::string id = input.id();
    firstNewSerial_ = command->newestSerial() + 1;
    const bool before = std::exchange(inChangeEvent_, true);
    {
        const ScopedIncrement notifying = runner_.enterCommandEvent();
        command->changedEvent->fire(
            make<InputChangedEventArgsObject>(command->changedEvent,
                                              core::Ptr<core::CommandInput>(input.api()), inputs),
            id);
    }
    inChangeEvent_ = before;
}

void DialogInputs::changedByCode(InputState& input, CodeChange what) {
    if (!inChangeEvent_ || codeChanges_ == CodeChanges::None || input.serial >= firstNewSerial_) {
        return;
    }
    const bool selected = input.kind == InputKind::DropDown && what == CodeChange::Selected;
    if (selected || codeChanges_ == CodeChanges::All) {
        codeChanged_.emplace_back(input.api());
    }
}

void DialogInputs::notifyCodeChanges() {
    for (int reported = 0; !codeChanged_.empty(); ++reported) {
        if (reported == kMostCodeChanges) {
            codeChanged_.clear();
            throw MisuseError("changes made by handlers of the dialog do not end");
        }
        const core::Ptr<core::CommandInput> next = codeChanged_.front();
        codeChanged_.pop_front();
        InputState* input = InputState::of(next);
        if (runner_.active() && input->owner() != nullptr) {
            notifyInputChanged(*input);
        }
    }
}

void DialogInputs::validateAndPreview() {
    validate();
    preview();
}

void DialogInputs::validate() {
    const ScopedIncrement notifying = runner_.enterCommandEvent();
    const core::Ptr<CommandObject>& command = runner_.active();
    const auto arguments = make<ValidateInputsEventArgsObject>(
        command->validateEvent, core::Ptr<core::CommandInputs>(&command->inputs()));
    command->validateEvent->fire(arguments);
    valid_ = arguments->state().valid;
}

void DialogInputs::preview() {
    takeBackPreview();
    const core::Ptr<CommandObject>& command = runner_.active();
    if (!command->previewEvent->hasHandlers() || !whyInvalid().empty()) return;
    const ModelHistory& history = runner_.ui().history;
    const auto arguments = make<CommandEventArgsObject>(command->previewEvent, command);
    const std::uint64_t record = history.begin();
    previewed_ = record;
    {
        const ScopedIncrement notifying = runner_.enterCommandEvent();
        command->previewEvent->fire(arguments);
    }
    history.end(record);
    previewAccepts_ = arguments->state().validResult;
}

void DialogInputs::takeBackPreview() {
    if (const auto record = std::exchange(previewed_, std::nullopt)) {
        runner_.ui().history.takeBack(*record);
        dropInvalidPicks();
    }
    previewAccepts_ = false;
}

// What a preview adds can be picked, and is gone with it.
void DialogInputs::dropInvalidPicks() {
    if (const core::Ptr<CommandObject>& command = runner_.active()) {
        for (InputState* each : command->inputs().ofKind(InputKind::Selection)) {
            selectionOf(each).dropInvalid();
        }
    }
    runner_.ui().state().selections->list.removeInvalid();
}

bool DialogInputs::acceptPreview() {
    if (previewAccepts_ && previewed_) {
        runner_.ui().history.keep(*std::exchange(previewed_, std::nullopt));
    }
    return previewAccepts_;
}

std::string DialogInputs::whyInvalid() const {
    for (InputState* each : runner_.active()->inputs().ofKind(InputKind::Selection)) {
        const SelectionCommandInputObject& input = selectionOf(each);
        if (input.picks().count() < input.state().minimum) {
            return "the selection \"" + input.InputState::id() + "\" needs " +
                   std::to_string(input.state().minimum) + ", and has " +
                   std::to_string(input.picks().count());
        }
    }
    for (InputState* each : runner_.active()->inputs().ofKind(InputKind::Number)) {
        const NumberState& number = numberOf(each);
        if (!number.field().isValid()) {
            return "the number \"" + number.id() +
                   "\" has no value: " + number.field().expression();
        }
    }
    for (InputState* each : runner_.active()->inputs().ofKind(InputKind::Slider)) {
        if (const std::string* const expression = sliderOf(each).invalidExpression()) {
            return "the slider \"" + each->id() + "\" does not have the value " + *expression;
        }
    }
    return valid_ ? "" : "a handler of the dialog finds the inputs invalid";
}

}  // namespace host::ui
