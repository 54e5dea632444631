#include "host/ui/commands/command_runner.h"

#include "host/ui/commands/scoped_increment.h"
#include "host/ui/inputs/selection_input.h"
#include "host/ui/user_interface.h"

#include <algorithm>
#include <utility>

// What goes on between a command and its inputs while its dialog is open.
namespace host::ui {
namespace {

// Handlers that go on answering each other's changes would too.
constexpr int kMostCodeChanges = 100000;

}  // namespace

// What was selected before the command started goes into its selections, as if it were picked now.
void CommandRunner::takeCurrentSelections() {
    const core::Ptr<CommandObject> command = active_;
    std::vector<core::Ptr<core::Base>> left = ui_->selections().list.entities();
    std::vector<
        std::pair<core::Ptr<SelectionCommandInputObject>, std::vector<core::Ptr<core::Base>>>>
        taken;
    for (InputState* each : command->inputs().ofKind(InputKind::Selection)) {
        SelectionCommandInputObject& input = selectionOf(each);
        if (!input.usesCurrentSelections() || !input.visible) continue;
        const auto refused = std::stable_partition(
            left.begin(), left.end(), [&](const auto& entity) { return input.accepts(entity); });
        const auto count = static_cast<std::size_t>(refused - left.begin());
        if (count == 0 || count > input.maximum()) continue;
        taken.emplace_back(core::Ptr<SelectionCommandInputObject>(&input),
                           std::vector<core::Ptr<core::Base>>(left.begin(), refused));
        left.erase(left.begin(), refused);
    }
    if (taken.empty()) return;
    ui_->selections().list.clear();
    for (const auto& [input, entities] : taken) {
        for (const core::Ptr<core::Base>& each : entities) {
            input->take(each);
        }
    }
    for (const auto& [input, entities] : taken) {
        if (active_ == command && input->isValid()) {
            notifyInputChanged(*input);
            notifyCodeChanges();
        }
    }
}

void CommandRunner::changed(InputState& input) {
    const ScopedIncrement busy(busy_);
    const core::Ptr<CommandObject> command = active_;
    notifyInputChanged(input);
    notifyCodeChanges();
    if (active_ == command) {
        validate();
        preview();
        runDeferredRequests();
    }
}

// The change of a tab is told as one of the tab bar, and is not validated.
void CommandRunner::tabChanged() {
    const ScopedIncrement busy(busy_);
    notifyInputChanged(active_->tabBar());
    notifyCodeChanges();
    runDeferredRequests();
}

void CommandRunner::notifyInputChanged(InputState& input) {
    const core::Ptr<CommandObject> command = active_;
    const core::Ptr<core::CommandInputs> inputs(input.owner());
    const std::string id = input.id();
    firstNewSerial_ = command->newestSerial() + 1;
    const bool before = std::exchange(tellsChanges_, true);
    {
        const ScopedIncrement notifying(notifying_);
        command->changedEvent->fire(
            make<InputChangedEventArgsObject>(command->changedEvent,
                                              core::Ptr<core::CommandInput>(input.api()), inputs),
            id);
    }
    tellsChanges_ = before;
}

void CommandRunner::changedByCode(InputState& input, CodeChange what) {
    if (!tellsChanges_ || codeChanges_ == CodeChanges::None || input.serial >= firstNewSerial_) {
        return;
    }
    const bool selected = input.kind == InputKind::DropDown && what == CodeChange::Selected;
    if (selected || codeChanges_ == CodeChanges::All) {
        codeChanged_.emplace_back(input.api());
    }
}

void CommandRunner::notifyCodeChanges() {
    for (int told = 0; !codeChanged_.empty(); ++told) {
        if (told == kMostCodeChanges) {
            codeChanged_.clear();
            throw MisuseError("changes made by handlers of the dialog do not come to an end");
        }
        const core::Ptr<core::CommandInput> next = codeChanged_.front();
        codeChanged_.pop_front();
        InputState* input = InputState::of(next);
        if (active_ && input->owner() != nullptr) {
            notifyInputChanged(*input);
        }
    }
}

void CommandRunner::validate() {
    const ScopedIncrement notifying(notifying_);
    const auto arguments = make<ValidateInputsEventArgsObject>(
        active_->validateEvent, core::Ptr<core::CommandInputs>(&active_->inputs()));
    active_->validateEvent->fire(arguments);
    valid_ = arguments->valid();
}

void CommandRunner::preview() {
    takeBackPreview();
    if (!active_->previewEvent->hasHandlers() || !refusalByInputs().empty()) return;
    if (!ui_->history.mark) {
        misuse("Command::executePreview", "nothing takes previews back in this host");
        return;
    }
    ui_->history.mark();
    previewed_ = true;
    const auto arguments = make<CommandEventArgsObject>(active_->previewEvent, active_);
    const ScopedIncrement notifying(notifying_);
    active_->previewEvent->fire(arguments);
    previewStands_ = arguments->standsForExecution();
}

void CommandRunner::takeBackPreview() {
    if (std::exchange(previewed_, false)) {
        ui_->history.takeBack();
    }
    previewStands_ = false;
}

// A dialog is accepted when all its selections are made and no handler objects.
std::string CommandRunner::refusalByInputs() const {
    for (InputState* each : active_->inputs().ofKind(InputKind::Selection)) {
        const SelectionCommandInputObject& input = selectionOf(each);
        if (input.picks().count() < input.minimum()) {
            return "the selection \"" + input.InputState::id() + "\" needs " +
                   std::to_string(input.minimum()) + ", and has " +
                   std::to_string(input.picks().count());
        }
    }
    return valid_ ? "" : "a handler of the dialog finds the inputs not valid";
}

std::string CommandRunner::whyOkRefused() {
    if (!active_ || !active_->isShown()) return "no dialog is open";
    if (!active_->okShown()) return "the dialog shows no such button";
    return refusalByInputs();
}

}  // namespace host::ui
