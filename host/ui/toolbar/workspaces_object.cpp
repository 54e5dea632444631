#include "host/ui/toolbar/workspaces_object.h"

#include "host/base/documented_points.h"
#include "host/ui/user_interface_object.h"

namespace host::ui {

WorkspacesObject::WorkspacesObject(UserInterfaceObject* ui,
                                   const std::vector<WorkspaceSetup>& setups)
    : ui_(ui) {
    for (const WorkspaceSetup& each : setups) {
        all_.push_back(make<WorkspaceObject>(this, each));
    }
    active_ = all_.empty() ? nullptr : all_.front();
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
        if (each->state().productType == productType) {
            tabs.insert(tabs.end(), each->tabs().begin(), each->tabs().end());
        }
    }
    return tabs;
}

bool WorkspacesObject::inCommandEvent() const { return ui_->runner().inCommandEvent(); }

// Contract: handlers see both workspaces before and after the change, the one that is left first.
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
    if (documentedPoints().palettesEndWithWorkspace) {
        ui_->state().palettes->clear();
    }
    fire(ui_->deactivatedEvent, before);
    fire(ui_->activatedEvent, workspace);
}

void WorkspacesObject::dispose() {
    disposeEntries(all_);
    active_ = nullptr;
    ui_ = nullptr;
    invalidate();
}

}  // namespace host::ui
