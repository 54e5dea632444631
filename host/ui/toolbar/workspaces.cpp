#include "host/ui/toolbar/workspaces.h"

#include "host/ui/toolbar/entries.h"
#include "host/ui/user_interface.h"

#include <utility>

namespace host::ui {
namespace {

constexpr const char* kToolsTab = "ToolsTab";

}  // namespace

WorkspaceObject::WorkspaceObject(WorkspacesObject* owner, WorkspaceSetup setup)
    : owner_(owner),
      setup_(std::move(setup)),
      panelsApi_(make<ToolbarPanelsObject>(this, nullptr)),
      tabsApi_(make<ToolbarTabsObject>(this)) {}

bool WorkspaceObject::isActive() const {
    if (closed<"Workspace::isActive">(*this)) return {};
    return owner_->active().get() == this;
}

bool WorkspaceObject::activate() {
    if (closed<"Workspace::activate">(*this)) return {};
    if (owner_->active().get() != this && owner_->inCommandEvent()) {
        return misuse("Workspace::activate", "called inside an event of a command");
    }
    owner_->activate(core::Ptr<WorkspaceObject>(this));
    return true;
}

PanelList WorkspaceObject::panels() const {
    PanelList all;
    for (const core::Ptr<ToolbarTabObject>& each : tabs_) {
        all.insert(all.end(), each->panels().begin(), each->panels().end());
    }
    return all;
}

ToolbarTabObject& WorkspaceObject::toolsTab() {
    core::Ptr<ToolbarTabObject> tab = entryOf(tabs_, kToolsTab);
    if (!tab) {
        tab = make<ToolbarTabObject>(this, kToolsTab, "Tools");
        tabs_.push_back(tab);
    }
    return *tab;
}

void WorkspaceObject::dispose() {
    for (const core::Ptr<ToolbarTabObject>& each : tabs_) {
        each->dispose();
    }
    tabs_.clear();
    panelsApi_->dispose();
    tabsApi_->dispose();
    owner_ = nullptr;
    invalidate();
}

WorkspacesObject::WorkspacesObject(UserInterfaceObject* ui,
                                   const std::vector<WorkspaceSetup>& setups)
    : ui_(ui) {
    for (const WorkspaceSetup& each : setups) {
        all_.push_back(make<WorkspaceObject>(this, each));
    }
    active_ = all_.empty() ? nullptr : all_.front();
}

std::size_t WorkspacesObject::count() const {
    if (closed<"Workspaces::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::Workspace> WorkspacesObject::item(std::size_t index) const {
    if (closed<"Workspaces::item">(*this)) return {};
    return entryAt(all_, index);
}

core::Ptr<core::Workspace> WorkspacesObject::itemById(const std::string& id) const {
    if (closed<"Workspaces::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<WorkspaceObject> WorkspacesObject::find(const std::string& id) const {
    return entryOf(all_, id);
}

core::Ptr<ToolbarPanelObject> WorkspacesObject::panel(const std::string& id) const {
    return entryOf(panels(), id);
}

PanelList WorkspacesObject::panels() const {
    PanelList panels;
    for (const core::Ptr<WorkspaceObject>& each : all_) {
        const PanelList own = each->panels();
        panels.insert(panels.end(), own.begin(), own.end());
    }
    return panels;
}

TabList WorkspacesObject::tabs(const std::string& productType) const {
    TabList tabs;
    for (const core::Ptr<WorkspaceObject>& each : all_) {
        if (each->product() == productType) {
            tabs.insert(tabs.end(), each->tabs().begin(), each->tabs().end());
        }
    }
    return tabs;
}

bool WorkspacesObject::inCommandEvent() const { return ui_->runner().inCommandEvent(); }

void WorkspacesObject::activate(const core::Ptr<WorkspaceObject>& workspace) {
    if (workspace == active_) return;
    ui_->leaveWorkspace();
    const auto fire = [](const core::Ptr<WorkspaceEventObject>& event,
                         const core::Ptr<WorkspaceObject>& about) {
        event->fire(make<WorkspaceEventArgsObject>(event, about));
    };
    const core::Ptr<WorkspaceObject> before = active_;
    fire(ui_->preDeactivateEvent, before);
    fire(ui_->preActivateEvent, workspace);
    active_ = workspace;
    fire(ui_->deactivatedEvent, before);
    fire(ui_->activatedEvent, workspace);
}

void WorkspacesObject::dispose() {
    for (const core::Ptr<WorkspaceObject>& each : all_) {
        each->dispose();
    }
    all_.clear();
    active_ = nullptr;
    ui_ = nullptr;
    invalidate();
}

}  // namespace host::ui
