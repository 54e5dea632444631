#include "host/ui/user_interface.h"

#include "host/ui/dialogs/file_dialog.h"
#include "host/ui/dialogs/messages.h"
#include "host/ui/dialogs/progress_dialog.h"
#include "host/ui/toolbar/entries.h"

#include <Core/Dialogs.h>

namespace host::ui {

// The names that records show for what a handler threw.
UserInterfaceObject::UserInterfaceObject(const HostSetup& setup, const ActiveModel& model)
    : startingEvent(make<ApplicationCommandEventObject>("OnCommandStarting", this)),
      createdEvent(make<ApplicationCommandEventObject>("OnApplicationCommandCreated", this)),
      terminatedEvent(make<ApplicationCommandEventObject>("OnCommandTerminated", this)),
      preActivateEvent(make<WorkspaceEventObject>("OnWorkspacePreActivate", this)),
      activatedEvent(make<WorkspaceEventObject>("OnWorkspaceActivated", this)),
      preDeactivateEvent(make<WorkspaceEventObject>("OnWorkspacePreDeactivate", this)),
      deactivatedEvent(make<WorkspaceEventObject>("OnWorkspaceDeactivated", this)),
      menuEvent(make<MarkingMenuEventObject>("OnMarkingMenuDisplaying", this)),
      model_(&model),
      runner_(this, setup.codeChanges),
      definitions_(make<CommandDefinitionsObject>(&runner_)),
      workspaces_(make<WorkspacesObject>(this, setup.workspaces)),
      panels_(make<ToolbarPanelListObject>(workspaces_.get())),
      palettes_(make<PalettesObject>()),
      selections_(make<SelectionsObject>()) {
    createDefaultLayout(setup);
}

// What stands in the toolbars before any module comes.
void UserInterfaceObject::createDefaultLayout(const HostSetup& setup) {
    if (setup.selectCommand) {
        runner_.setIdleCommand(definitions_->addNative("SelectCommand", "Select"));
    }
    if (!workspaces_->active()) return;
    const core::Ptr<ToolbarPanelObject> panel = workspaces_->active()->toolsTab().add(
        "SolidScriptsAddinsPanel", "Add-Ins", /*native=*/true, /*place=*/0);
    if (setup.repeatControl) {
        panel->buttons().append(definitions_->addNative("RepeatCommand", "Repeat"));
    }
}

core::Ptr<core::Workspace> UserInterfaceObject::activeWorkspace() const {
    if (closed<"UserInterface::activeWorkspace">(*this)) return {};
    return workspaces_->active();
}

core::Ptr<core::ToolbarTabList> UserInterfaceObject::toolbarTabsByProductType(
    const std::string& productType) const {
    if (closed<"UserInterface::toolbarTabsByProductType">(*this)) return {};
    if (const core::Ptr<ToolbarTabListObject> found = entryOf(tabLists_, productType)) return found;
    tabLists_.push_back(make<ToolbarTabListObject>(workspaces_.get(), productType));
    return tabLists_.back();
}

core::DialogResults UserInterfaceObject::messageBox(const std::string& text,
                                                    const std::string& title,
                                                    core::MessageBoxButtonTypes buttons,
                                                    core::MessageBoxIconTypes icon) {
    if (closed<"UserInterface::messageBox">(*this)) return {};
    return showMessage({text, title, buttons, icon, core::DialogOK});
}

core::Ptr<core::FileDialog> UserInterfaceObject::createFileDialog() {
    if (closed<"UserInterface::createFileDialog">(*this)) return {};
    return make<FileDialogObject>();
}

core::Ptr<core::ProgressDialog> UserInterfaceObject::createProgressDialog() {
    if (closed<"UserInterface::createProgressDialog">(*this)) return {};
    return make<ProgressDialogObject>();
}

bool UserInterfaceObject::terminateActiveCommand() {
    if (closed<"UserInterface::terminateActiveCommand">(*this)) return {};
    return runner_.terminate();
}

std::string UserInterfaceObject::activeCommand() const {
    if (closed<"UserInterface::activeCommand">(*this)) return {};
    return runner_.active() ? runner_.active()->definition()->identifier() : "";
}

bool UserInterfaceObject::isRootComponent(const core::Ptr<core::Base>& entity) const {
    return model_ != nullptr && model_->isRootComponent(entity);
}

std::uint64_t UserInterfaceObject::editsOfModel() const {
    return model_ != nullptr ? model_->editsOfModel() : 0;
}

void UserInterfaceObject::leaveWorkspace() {
    if (runner_.active()) {
        runner_.end(core::CancelledTerminationReason);
    }
}

void UserInterfaceObject::dispose() {
    runner_.dispose();
    for (const core::Ptr<ApplicationCommandEventObject>& each :
         {startingEvent, createdEvent, terminatedEvent}) {
        each->dispose();
    }
    for (const core::Ptr<WorkspaceEventObject>& each :
         {preActivateEvent, activatedEvent, preDeactivateEvent, deactivatedEvent}) {
        each->dispose();
    }
    menuEvent->dispose();
    definitions_->dispose();
    panels_->dispose();
    for (const core::Ptr<ToolbarTabListObject>& each : tabLists_) {
        each->dispose();
    }
    workspaces_->dispose();
    palettes_->dispose();
    selections_->list.clear();
    selections_->invalidate();
    model_ = nullptr;
    invalidate();
}

}  // namespace host::ui
