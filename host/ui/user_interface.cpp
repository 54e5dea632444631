#include "host/ui/user_interface.h"

#include "host/ui/dialogs/file_dialog.h"
#include "host/ui/dialogs/messages.h"
#include "host/ui/dialogs/progress_dialog.h"
#include "host/ui/toolbar/entries.h"

#include <Core/Dialogs.h>

namespace host::ui {

// The names that records show for what a handler threw.
UserInterface::UserInterface(const HostSetup& setup, const ActiveModel& model)
    : startingEvent(make<ApplicationEvent>("OnCommandStarting", this)),
      createdEvent(make<ApplicationEvent>("OnApplicationCommandCreated", this)),
      terminatedEvent(make<ApplicationEvent>("OnCommandTerminated", this)),
      preActivateEvent(make<WorkspaceEvent>("OnWorkspacePreActivate", this)),
      activatedEvent(make<WorkspaceEvent>("OnWorkspaceActivated", this)),
      preDeactivateEvent(make<WorkspaceEvent>("OnWorkspacePreDeactivate", this)),
      deactivatedEvent(make<WorkspaceEvent>("OnWorkspaceDeactivated", this)),
      menuEvent(make<MarkingMenuEvent>("OnMarkingMenuDisplaying", this)),
      model_(&model),
      runner_(this, setup.codeChanges),
      definitions_(make<CommandDefinitions>(&runner_)),
      workspaces_(make<Workspaces>(this, setup.workspaces)),
      panels_(make<ToolbarPanelList>(workspaces_.get())),
      palettes_(make<Palettes>()),
      selections_(make<Selections>()) {
    createDefaultLayout(setup);
}

// What stands in the toolbars before any module comes.
void UserInterface::createDefaultLayout(const HostSetup& setup) {
    if (setup.selectCommand) {
        runner_.setIdleCommand(definitions_->addNative("SelectCommand", "Select"));
    }
    if (!workspaces_->active()) return;
    const core::Ptr<ToolbarPanel> panel = workspaces_->active()->toolsTab().add(
        "SolidScriptsAddinsPanel", "Add-Ins", /*native=*/true, /*place=*/0);
    if (setup.repeatControl) {
        panel->buttons().append(definitions_->addNative("RepeatCommand", "Repeat"));
    }
}

core::Ptr<core::Workspaces> UserInterface::workspaces() const {
    if (closed<"UserInterface::workspaces">(*this)) return {};
    return workspaces_;
}

core::Ptr<core::Workspace> UserInterface::activeWorkspace() const {
    if (closed<"UserInterface::activeWorkspace">(*this)) return {};
    return workspaces_->active();
}

core::Ptr<core::ToolbarPanelList> UserInterface::allToolbarPanels() const {
    if (closed<"UserInterface::allToolbarPanels">(*this)) return {};
    return panels_;
}

core::Ptr<core::ToolbarTabList> UserInterface::toolbarTabsByProductType(
    const std::string& productType) const {
    if (closed<"UserInterface::toolbarTabsByProductType">(*this)) return {};
    if (const core::Ptr<ToolbarTabList> found = entryOf(tabLists_, productType)) return found;
    tabLists_.push_back(make<ToolbarTabList>(workspaces_.get(), productType));
    return tabLists_.back();
}

core::Ptr<core::Palettes> UserInterface::palettes() const {
    if (closed<"UserInterface::palettes">(*this)) return {};
    return palettes_;
}

core::Ptr<core::CommandDefinitions> UserInterface::commandDefinitions() const {
    if (closed<"UserInterface::commandDefinitions">(*this)) return {};
    return definitions_;
}

core::Ptr<core::Selections> UserInterface::activeSelections() const {
    if (closed<"UserInterface::activeSelections">(*this)) return {};
    return selections_;
}

core::Ptr<core::ApplicationCommandEvent> UserInterface::commandStarting() const {
    if (closed<"UserInterface::commandStarting">(*this)) return {};
    return startingEvent;
}

core::Ptr<core::ApplicationCommandEvent> UserInterface::commandCreated() const {
    if (closed<"UserInterface::commandCreated">(*this)) return {};
    return createdEvent;
}

core::Ptr<core::ApplicationCommandEvent> UserInterface::commandTerminated() const {
    if (closed<"UserInterface::commandTerminated">(*this)) return {};
    return terminatedEvent;
}

core::Ptr<core::WorkspaceEvent> UserInterface::workspacePreActivate() const {
    if (closed<"UserInterface::workspacePreActivate">(*this)) return {};
    return preActivateEvent;
}

core::Ptr<core::WorkspaceEvent> UserInterface::workspaceActivated() const {
    if (closed<"UserInterface::workspaceActivated">(*this)) return {};
    return activatedEvent;
}

core::Ptr<core::WorkspaceEvent> UserInterface::workspacePreDeactivate() const {
    if (closed<"UserInterface::workspacePreDeactivate">(*this)) return {};
    return preDeactivateEvent;
}

core::Ptr<core::WorkspaceEvent> UserInterface::workspaceDeactivated() const {
    if (closed<"UserInterface::workspaceDeactivated">(*this)) return {};
    return deactivatedEvent;
}

core::Ptr<core::MarkingMenuEvent> UserInterface::markingMenuDisplaying() const {
    if (closed<"UserInterface::markingMenuDisplaying">(*this)) return {};
    return menuEvent;
}

core::DialogResults UserInterface::messageBox(const std::string& text, const std::string& title,
                                              core::MessageBoxButtonTypes buttons,
                                              core::MessageBoxIconTypes icon) {
    if (closed<"UserInterface::messageBox">(*this)) return {};
    return showMessage({text, title, buttons, icon, core::DialogOK});
}

core::Ptr<core::FileDialog> UserInterface::createFileDialog() {
    if (closed<"UserInterface::createFileDialog">(*this)) return {};
    return make<FileDialog>();
}

core::Ptr<core::ProgressDialog> UserInterface::createProgressDialog() {
    if (closed<"UserInterface::createProgressDialog">(*this)) return {};
    return make<ProgressDialog>();
}

bool UserInterface::terminateActiveCommand() {
    if (closed<"UserInterface::terminateActiveCommand">(*this)) return {};
    return runner_.terminate();
}

std::string UserInterface::activeCommand() const {
    if (closed<"UserInterface::activeCommand">(*this)) return {};
    return runner_.active() ? runner_.active()->definition()->identifier() : "";
}

bool UserInterface::isRootComponent(const core::Ptr<core::Base>& entity) const {
    return model_ != nullptr && model_->isRootComponent(entity);
}

std::uint64_t UserInterface::editsOfModel() const {
    return model_ != nullptr ? model_->editsOfModel() : 0;
}

void UserInterface::leaveWorkspace() {
    if (runner_.active()) {
        runner_.end(core::CancelledTerminationReason);
    }
}

void UserInterface::dispose() {
    runner_.dispose();
    for (const core::Ptr<ApplicationEvent>& each : {startingEvent, createdEvent, terminatedEvent}) {
        each->dispose();
    }
    for (const core::Ptr<WorkspaceEvent>& each :
         {preActivateEvent, activatedEvent, preDeactivateEvent, deactivatedEvent}) {
        each->dispose();
    }
    menuEvent->dispose();
    definitions_->dispose();
    panels_->dispose();
    for (const core::Ptr<ToolbarTabList>& each : tabLists_) {
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
