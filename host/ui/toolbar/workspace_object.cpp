#include "host/ui/toolbar/workspace_object.h"

#include "host/ui/toolbar/workspaces_object.h"

#include <utility>

namespace host::ui {
namespace {

constexpr const char* kToolsTab = "ToolsTab";

}  // namespace

WorkspaceObject::WorkspaceObject(WorkspacesObject* owner, WorkspaceSetup setup)
    : owner_(owner),
      state_(std::move(setup)),
      panelsApi_(make<ToolbarPanelsObject>(this, nullptr)),
      tabsApi_(make<ToolbarTabsObject>(this)) {}

bool WorkspaceObject::isActive() const {
    if (closed<"isActive">(*this)) return {};
    return owner_->active().get() == this;
}

bool WorkspaceObject::activate() {
    if (closed<"activate">(*this)) return {};
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

ToolbarTabObject& WorkspaceObject::tab(const std::string& id, const std::string& name) {
    core::Ptr<ToolbarTabObject> tab = entryOf(tabs_, id);
    if (!tab) {
        tab = make<ToolbarTabObject>(this, id, name);
        tabs_.push_back(tab);
    }
    return *tab;
}

ToolbarTabObject& WorkspaceObject::toolsTab() { return tab(kToolsTab, "Tools"); }

void WorkspaceObject::dispose() {
    disposeEntries(tabs_);
    panelsApi_->dispose();
    tabsApi_->dispose();
    owner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
