#include "host/ui/user_interface_object.h"

#include "host/ui/dialogs/file_dialog_object.h"
#include "host/ui/dialogs/messages.h"
#include "host/ui/dialogs/progress_dialog_object.h"

#include <Core/Dialogs.h>

#include <algorithm>

namespace host::ui {
namespace {

UserInterfaceState makeState(UserInterfaceObject& ui, CommandRunner& runner,
                             const HostSetup& setup) {
    const auto workspaces = make<WorkspacesObject>(&ui, setup.workspaces);
    return {.definitions = make<CommandDefinitionsObject>(&runner),
            .workspaces = workspaces,
            .panels = make<ToolbarPanelListObject>(workspaces.get()),
            .toolbars = make<ToolbarsObject>(setup.toolbars),
            .palettes = make<PalettesObject>(),
            .selections = make<SelectionsObject>()};
}

}  // namespace

UserInterfaceObject::UserInterfaceObject(const HostSetup& setup, const ActiveModel& model)
    : model_(&model), runner_(this, setup.codeChanges), state_(makeState(*this, runner_, setup)) {
    createDefaultLayout(setup);
}

// What the toolbars hold before any module is loaded.
void UserInterfaceObject::createDefaultLayout(const HostSetup& setup) {
    runner_.setIdleCommand(state_.definitions->addNative("SelectCommand", "Select"),
                           setup.selectCommand);
    for (const CommandSetup& each : setup.commands) {
        state_.definitions->addNative(each.id, each.name);
    }
    for (const PanelSetup& each : setup.panels) {
        if (const auto workspace = state_.workspaces->find(each.workspace)) {
            ToolbarTabObject& tab = workspace->tab(each.tab, each.tabName);
            tab.add(each.id, each.name, /*native=*/true, tab.panels().size());
        }
    }
    if (!state_.workspaces->active()) return;
    const core::Ptr<ToolbarPanelObject> panel = state_.workspaces->active()->toolsTab().add(
        "SolidScriptsAddinsPanel", "Add-Ins", /*native=*/true, /*place=*/0);
    if (setup.repeatControl) {
        panel->state().controls->append(state_.definitions->addNative("RepeatCommand", "Repeat"));
    }
}

core::Ptr<core::Workspace> UserInterfaceObject::activeWorkspace() const {
    if (closed<"activeWorkspace">(*this)) return {};
    return state_.workspaces->active();
}

core::Ptr<core::ToolbarTabList> UserInterfaceObject::toolbarTabsByProductType(
    const std::string& productType) const {
    if (closed<"toolbarTabsByProductType">(*this)) return {};
    const auto found = std::find_if(tabLists_.begin(), tabLists_.end(), [&](const auto& each) {
        return each->productType() == productType;
    });
    if (found != tabLists_.end()) return *found;
    tabLists_.push_back(make<ToolbarTabListObject>(state_.workspaces.get(), productType));
    return tabLists_.back();
}

core::DialogResults UserInterfaceObject::messageBox(const std::string& text,
                                                    const std::string& title,
                                                    core::MessageBoxButtonTypes buttons,
                                                    core::MessageBoxIconTypes icon) {
    if (closed<"messageBox">(*this)) return {};
    return showMessage({.text = text, .title = title, .buttons = buttons, .icon = icon});
}

core::Ptr<core::FileDialog> UserInterfaceObject::createFileDialog() {
    if (closed<"createFileDialog">(*this)) return {};
    return make<FileDialogObject>();
}

core::Ptr<core::FolderDialog> UserInterfaceObject::createFolderDialog() {
    if (closed<"createFolderDialog">(*this)) return {};
    return make<FolderDialogObject>();
}

core::Ptr<core::ProgressDialog> UserInterfaceObject::createProgressDialog() {
    if (closed<"createProgressDialog">(*this)) return {};
    return make<ProgressDialogObject>();
}

bool UserInterfaceObject::terminateActiveCommand() {
    if (closed<"terminateActiveCommand">(*this)) return {};
    return runner_.terminate();
}

std::string UserInterfaceObject::activeCommand() const {
    if (closed<"activeCommand">(*this)) return {};
    return runner_.activeId();
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
    disposeEvents(startingEvent, createdEvent, terminatedEvent, preActivateEvent, activatedEvent,
                  preDeactivateEvent, deactivatedEvent, menuEvent);
    state_.definitions->dispose();
    state_.panels->dispose();
    disposeEntries(tabLists_);
    state_.workspaces->dispose();
    state_.toolbars->dispose();
    state_.palettes->dispose();
    state_.selections->dispose();
    model_ = nullptr;
    invalidate();
}

}  // namespace host::ui
