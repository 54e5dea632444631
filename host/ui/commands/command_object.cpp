#include "host/ui/commands/command_object.h"

#include "host/ui/commands/command_runner.h"

#include <utility>

namespace host::ui {

CommandObject::CommandObject(core::Ptr<CommandDefinitionObject> definition, CommandRunner* runner)
    : definition_(std::move(definition)),
      runner_(runner),
      inputs_(make<CommandInputsObject>(this, nullptr)) {}

bool CommandObject::okButtonText(const std::string& value) {
    if (closed<"okButtonText">(*this)) return {};
    state_.okText = value;
    state_.customized = true;
    return true;
}

bool CommandObject::cancelButtonText(const std::string& value) {
    if (closed<"cancelButtonText">(*this)) return {};
    state_.cancelText = value;
    state_.customized = true;
    return true;
}

bool CommandObject::setDialogInitialSize(int width, int height) {
    if (closed<"setDialogInitialSize">(*this)) return {};
    if (state_.shown) {
        return misuse("Command::setDialogInitialSize", "the dialog is already open");
    }
    state_.initialSize = {width, height};
    state_.customized = true;
    return true;
}

bool CommandObject::setDialogMinimumSize(int width, int height) {
    if (closed<"setDialogMinimumSize">(*this)) return {};
    state_.minimumSize = {width, height};
    state_.customized = true;
    return true;
}

bool CommandObject::doExecute(bool terminate) {
    if (closed<"doExecute">(*this)) return {};
    return runner_->executeByCode(*this, terminate);
}

UserInterfaceObject& CommandObject::ui() const { return runner_->ui(); }

bool CommandObject::isOpen() const {
    return state_.shown && runner_ != nullptr && runner_->active().get() == this;
}

InputState* CommandObject::activeTab() const {
    if (activeTab_ != nullptr) return activeTab_;
    const std::vector<InputState*> tabs = inputs_->ofKind(InputKind::Tab);
    return tabs.empty() ? nullptr : tabs.front();
}

InputState& CommandObject::tabBar() {
    if (!tabBar_) {
        const std::string id = "APITabBar";
        tabBar_ = make<TabBar>(
            InputOrigin{.owner = inputs_.get(), .id = &id, .name = strings_.share("")});
    }
    return *tabBar_;
}

InputState* CommandObject::focus() const {
    if (focusChosen_) return focus_;
    const std::vector<InputState*> selections = inputs_->ofKind(InputKind::Selection);
    return selections.empty() ? nullptr : selections.front();
}

void CommandObject::focus(InputState* selection) {
    focus_ = selection;
    focusChosen_ = true;
}

void CommandObject::forget(const InputState& input) {
    extras_.erase(&input);
    if (activeTab_ == &input) {
        activeTab_ = nullptr;
    }
    if (focus_ == &input) {
        focus_ = nullptr;
        focusChosen_ = false;
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
        tabBar_->dispose();
    }
    inputs_->dispose();
    disposeEvents(executeEvent, previewEvent, activateEvent, deactivateEvent, destroyEvent,
                  changedEvent, validateEvent);
    invalidate();
}

}  // namespace host::ui
