#include "host/ui/commands/command.h"

#include "host/ui/commands/command_runner.h"

#include <utility>

namespace host::ui {

// The names that records show for what a handler threw.
Command::Command(core::Ptr<CommandDefinition> definition, CommandRunner* runner)
    : executeEvent(make<CommandEvent>("OnExecute", this)),
      previewEvent(make<CommandEvent>("OnExecutePreview", this)),
      activateEvent(make<CommandEvent>("OnActivate", this)),
      deactivateEvent(make<CommandEvent>("OnDeactivate", this)),
      destroyEvent(make<CommandEvent>("OnDestroy", this)),
      changedEvent(make<ChangedEvent>("OnInputChanged", this)),
      validateEvent(make<ValidateEvent>("OnValidateInputs", this)),
      definition_(std::move(definition)),
      runner_(runner),
      inputs_(make<CommandInputs>(this, nullptr)) {}

core::Ptr<core::CommandInputs> Command::commandInputs() const {
    if (closed<"Command::commandInputs">(*this)) return {};
    return inputs_;
}

core::Ptr<core::CommandDefinition> Command::parentCommandDefinition() const {
    if (closed<"Command::parentCommandDefinition">(*this)) return {};
    return definition_;
}

core::Ptr<core::CommandEvent> Command::execute() const {
    if (closed<"Command::execute">(*this)) return {};
    return executeEvent;
}

core::Ptr<core::CommandEvent> Command::executePreview() const {
    if (closed<"Command::executePreview">(*this)) return {};
    return previewEvent;
}

core::Ptr<core::CommandEvent> Command::activate() const {
    if (closed<"Command::activate">(*this)) return {};
    return activateEvent;
}

core::Ptr<core::CommandEvent> Command::deactivate() const {
    if (closed<"Command::deactivate">(*this)) return {};
    return deactivateEvent;
}

core::Ptr<core::CommandEvent> Command::destroy() const {
    if (closed<"Command::destroy">(*this)) return {};
    return destroyEvent;
}

core::Ptr<core::InputChangedEvent> Command::inputChanged() const {
    if (closed<"Command::inputChanged">(*this)) return {};
    return changedEvent;
}

core::Ptr<core::ValidateInputsEvent> Command::validateInputs() const {
    if (closed<"Command::validateInputs">(*this)) return {};
    return validateEvent;
}

std::string Command::okButtonText() const {
    if (closed<"Command::okButtonText">(*this)) return {};
    return okText_;
}

bool Command::okButtonText(const std::string& value) {
    if (closed<"Command::okButtonText">(*this)) return {};
    okText_ = value;
    dressed_ = true;
    return true;
}

std::string Command::cancelButtonText() const {
    if (closed<"Command::cancelButtonText">(*this)) return {};
    return cancelText_;
}

bool Command::cancelButtonText(const std::string& value) {
    if (closed<"Command::cancelButtonText">(*this)) return {};
    cancelText_ = value;
    dressed_ = true;
    return true;
}

bool Command::isOKButtonVisible() const {
    if (closed<"Command::isOKButtonVisible">(*this)) return {};
    return okVisible_;
}

bool Command::isOKButtonVisible(bool value) {
    if (closed<"Command::isOKButtonVisible">(*this)) return {};
    okVisible_ = value;
    return true;
}

bool Command::isAutoExecute() const {
    if (closed<"Command::isAutoExecute">(*this)) return {};
    return autoExecute_;
}

bool Command::isAutoExecute(bool value) {
    if (closed<"Command::isAutoExecute">(*this)) return {};
    autoExecute_ = value;
    return true;
}

bool Command::isExecutedWhenPreEmpted() const {
    if (closed<"Command::isExecutedWhenPreEmpted">(*this)) return {};
    return executedWhenPreEmpted_;
}

bool Command::isExecutedWhenPreEmpted(bool value) {
    if (closed<"Command::isExecutedWhenPreEmpted">(*this)) return {};
    executedWhenPreEmpted_ = value;
    return true;
}

bool Command::isRepeatable() const {
    if (closed<"Command::isRepeatable">(*this)) return {};
    return repeatable_;
}

bool Command::isRepeatable(bool value) {
    if (closed<"Command::isRepeatable">(*this)) return {};
    repeatable_ = value;
    return true;
}

bool Command::setDialogInitialSize(int width, int height) {
    if (closed<"Command::setDialogInitialSize">(*this)) return {};
    if (shown_) {
        return misuse("Command::setDialogInitialSize", "the dialog shows already");
    }
    initialSize_ = {width, height};
    dressed_ = true;
    return true;
}

bool Command::setDialogMinimumSize(int width, int height) {
    if (closed<"Command::setDialogMinimumSize">(*this)) return {};
    minimumSize_ = {width, height};
    dressed_ = true;
    return true;
}

bool Command::doExecute(bool terminate) {
    if (closed<"Command::doExecute">(*this)) return {};
    return runner_->executeByCode(terminate);
}

UserInterface& Command::ui() const { return runner_->ui(); }

bool Command::isOpen() const {
    return shown_ && runner_ != nullptr && runner_->active().get() == this;
}

InputState* Command::activeTab() const {
    if (activeTab_ != nullptr) return activeTab_;
    const std::vector<InputState*> tabs = inputs_->ofKind(InputKind::Tab);
    return tabs.empty() ? nullptr : tabs.front();
}

InputState& Command::tabBar() {
    if (!tabBar_) {
        const std::string id = "APITabBar";
        tabBar_ = make<TabBar>(InputOrigin{inputs_.get(), &id, texts_.share("")});
    }
    return *tabBar_;
}

InputState* Command::focus() const {
    if (focusGiven_) return focus_;
    const std::vector<InputState*> selections = inputs_->ofKind(InputKind::Selection);
    return selections.empty() ? nullptr : selections.front();
}

void Command::focus(InputState* selection) {
    focus_ = selection;
    focusGiven_ = true;
}

void Command::forget(const InputState& input) {
    if (activeTab_ == &input) {
        activeTab_ = nullptr;
    }
    if (focus_ == &input) {
        focus_ = nullptr;
        focusGiven_ = false;
    }
}

void Command::changedByCode(InputState& input, CodeChange what) {
    if (runner_ != nullptr) {
        runner_->changedByCode(input, what);
    }
}

void Command::dispose() {
    runner_ = nullptr;
    if (tabBar_) {
        tabBar_->retire();
    }
    inputs_->dispose();
    for (const core::Ptr<CommandEvent>& each :
         {executeEvent, previewEvent, activateEvent, deactivateEvent, destroyEvent}) {
        each->dispose();
    }
    changedEvent->dispose();
    validateEvent->dispose();
    invalidate();
}

}  // namespace host::ui
