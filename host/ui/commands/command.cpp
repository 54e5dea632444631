#include "host/ui/commands/command.h"

#include "host/ui/commands/command_runner.h"

#include <utility>

namespace host::ui {

// The names that records show for what a handler threw.
CommandObject::CommandObject(core::Ptr<CommandDefinitionObject> definition, CommandRunner* runner)
    : executeEvent(make<CommandEventObject>("OnExecute", this)),
      previewEvent(make<CommandEventObject>("OnExecutePreview", this)),
      activateEvent(make<CommandEventObject>("OnActivate", this)),
      deactivateEvent(make<CommandEventObject>("OnDeactivate", this)),
      destroyEvent(make<CommandEventObject>("OnDestroy", this)),
      changedEvent(make<InputChangedEventObject>("OnInputChanged", this)),
      validateEvent(make<ValidateInputsEventObject>("OnValidateInputs", this)),
      definition_(std::move(definition)),
      runner_(runner),
      inputs_(make<CommandInputsObject>(this, nullptr)) {}

core::Ptr<core::CommandInputs> CommandObject::commandInputs() const {
    if (closed<"Command::commandInputs">(*this)) return {};
    return inputs_;
}

core::Ptr<core::CommandDefinition> CommandObject::parentCommandDefinition() const {
    if (closed<"Command::parentCommandDefinition">(*this)) return {};
    return definition_;
}

core::Ptr<core::CommandEvent> CommandObject::execute() const {
    if (closed<"Command::execute">(*this)) return {};
    return executeEvent;
}

core::Ptr<core::CommandEvent> CommandObject::executePreview() const {
    if (closed<"Command::executePreview">(*this)) return {};
    return previewEvent;
}

core::Ptr<core::CommandEvent> CommandObject::activate() const {
    if (closed<"Command::activate">(*this)) return {};
    return activateEvent;
}

core::Ptr<core::CommandEvent> CommandObject::deactivate() const {
    if (closed<"Command::deactivate">(*this)) return {};
    return deactivateEvent;
}

core::Ptr<core::CommandEvent> CommandObject::destroy() const {
    if (closed<"Command::destroy">(*this)) return {};
    return destroyEvent;
}

core::Ptr<core::InputChangedEvent> CommandObject::inputChanged() const {
    if (closed<"Command::inputChanged">(*this)) return {};
    return changedEvent;
}

core::Ptr<core::ValidateInputsEvent> CommandObject::validateInputs() const {
    if (closed<"Command::validateInputs">(*this)) return {};
    return validateEvent;
}

std::string CommandObject::okButtonText() const {
    if (closed<"Command::okButtonText">(*this)) return {};
    return okText_;
}

bool CommandObject::okButtonText(const std::string& value) {
    if (closed<"Command::okButtonText">(*this)) return {};
    okText_ = value;
    dressed_ = true;
    return true;
}

std::string CommandObject::cancelButtonText() const {
    if (closed<"Command::cancelButtonText">(*this)) return {};
    return cancelText_;
}

bool CommandObject::cancelButtonText(const std::string& value) {
    if (closed<"Command::cancelButtonText">(*this)) return {};
    cancelText_ = value;
    dressed_ = true;
    return true;
}

bool CommandObject::isOKButtonVisible() const {
    if (closed<"Command::isOKButtonVisible">(*this)) return {};
    return okVisible_;
}

bool CommandObject::isOKButtonVisible(bool value) {
    if (closed<"Command::isOKButtonVisible">(*this)) return {};
    okVisible_ = value;
    return true;
}

bool CommandObject::isAutoExecute() const {
    if (closed<"Command::isAutoExecute">(*this)) return {};
    return autoExecute_;
}

bool CommandObject::isAutoExecute(bool value) {
    if (closed<"Command::isAutoExecute">(*this)) return {};
    autoExecute_ = value;
    return true;
}

bool CommandObject::isExecutedWhenPreEmpted() const {
    if (closed<"Command::isExecutedWhenPreEmpted">(*this)) return {};
    return executedWhenPreEmpted_;
}

bool CommandObject::isExecutedWhenPreEmpted(bool value) {
    if (closed<"Command::isExecutedWhenPreEmpted">(*this)) return {};
    executedWhenPreEmpted_ = value;
    return true;
}

bool CommandObject::isRepeatable() const {
    if (closed<"Command::isRepeatable">(*this)) return {};
    return repeatable_;
}

bool CommandObject::isRepeatable(bool value) {
    if (closed<"Command::isRepeatable">(*this)) return {};
    repeatable_ = value;
    return true;
}

bool CommandObject::setDialogInitialSize(int width, int height) {
    if (closed<"Command::setDialogInitialSize">(*this)) return {};
    if (shown_) {
        return misuse("Command::setDialogInitialSize", "the dialog shows already");
    }
    initialSize_ = {width, height};
    dressed_ = true;
    return true;
}

bool CommandObject::setDialogMinimumSize(int width, int height) {
    if (closed<"Command::setDialogMinimumSize">(*this)) return {};
    minimumSize_ = {width, height};
    dressed_ = true;
    return true;
}

bool CommandObject::doExecute(bool terminate) {
    if (closed<"Command::doExecute">(*this)) return {};
    return runner_->executeByCode(terminate);
}

UserInterfaceObject& CommandObject::ui() const { return runner_->ui(); }

bool CommandObject::isOpen() const {
    return shown_ && runner_ != nullptr && runner_->active().get() == this;
}

InputState* CommandObject::activeTab() const {
    if (activeTab_ != nullptr) return activeTab_;
    const std::vector<InputState*> tabs = inputs_->ofKind(InputKind::Tab);
    return tabs.empty() ? nullptr : tabs.front();
}

InputState& CommandObject::tabBar() {
    if (!tabBar_) {
        const std::string id = "APITabBar";
        tabBar_ = make<TabBar>(InputOrigin{inputs_.get(), &id, texts_.share("")});
    }
    return *tabBar_;
}

InputState* CommandObject::focus() const {
    if (focusGiven_) return focus_;
    const std::vector<InputState*> selections = inputs_->ofKind(InputKind::Selection);
    return selections.empty() ? nullptr : selections.front();
}

void CommandObject::focus(InputState* selection) {
    focus_ = selection;
    focusGiven_ = true;
}

void CommandObject::forget(const InputState& input) {
    if (activeTab_ == &input) {
        activeTab_ = nullptr;
    }
    if (focus_ == &input) {
        focus_ = nullptr;
        focusGiven_ = false;
    }
}

void CommandObject::changedByCode(InputState& input, CodeChange what) {
    if (runner_ != nullptr) {
        runner_->changedByCode(input, what);
    }
}

void CommandObject::dispose() {
    runner_ = nullptr;
    if (tabBar_) {
        tabBar_->retire();
    }
    inputs_->dispose();
    for (const core::Ptr<CommandEventObject>& each :
         {executeEvent, previewEvent, activateEvent, deactivateEvent, destroyEvent}) {
        each->dispose();
    }
    changedEvent->dispose();
    validateEvent->dispose();
    invalidate();
}

}  // namespace host::ui
