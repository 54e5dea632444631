#pragma once

#include "host/base/events.h"
#include "host/ui/collection_object.h"
#include "host/ui/toolbar/workspace_object.h"

#include <Core/Workspaces.h>

#include <string>
#include <utility>
#include <vector>

namespace host::ui {

class UserInterfaceObject;

/// All workspaces; one of them is active.
class WorkspacesObject final : public CollectionObject<core::Workspaces, WorkspaceObject> {
public:
    WorkspacesObject(UserInterfaceObject* ui, const std::vector<WorkspaceSetup>& setups);

    [[nodiscard]] List all() const override { return all_; }
    [[nodiscard]] const core::Ptr<WorkspaceObject>& active() const { return active_; }

    /// The panel of this id in any workspace, null where there is none.
    [[nodiscard]] core::Ptr<ToolbarPanelObject> panel(const std::string& id) const;
    [[nodiscard]] PanelList panels() const;
    [[nodiscard]] TabList tabs(const std::string& productType) const;

    /// True inside any event of a command, where the workspace cannot change.
    [[nodiscard]] bool inCommandEvent() const;

    /// Shows a workspace and fires the events of the change, unless it is shown already.
    void activate(const core::Ptr<WorkspaceObject>& workspace);
    void dispose();

private:
    UserInterfaceObject* ui_;
    List all_;
    core::Ptr<WorkspaceObject> active_;
};

class WorkspaceEventArgsObject final : public Arguments<core::WorkspaceEventArgs> {
public:
    WorkspaceEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::Workspace> workspace)
        : Arguments(std::move(event)), workspace_(std::move(workspace)) {}

    [[nodiscard]] core::Ptr<core::Workspace> workspace() const override {
        return get<"workspace">(workspace_);
    }

private:
    core::Ptr<core::Workspace> workspace_;
};

using WorkspaceEventObject = TypedEvent<core::WorkspaceEvent>;

}  // namespace host::ui
