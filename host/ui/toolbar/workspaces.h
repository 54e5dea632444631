#pragma once

#include "host/base/events.h"
#include "host/ui/host_setup.h"
#include "host/ui/toolbar/toolbar_tabs.h"

#include <Core/Workspaces.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

class UserInterfaceObject;
class WorkspacesObject;

/// A workspace with its toolbar.
class WorkspaceObject final : public Object<core::Workspace> {
public:
    WorkspaceObject(WorkspacesObject* owner, WorkspaceSetup setup);

    [[nodiscard]] std::string id() const override { return get<"Workspace::id">(setup_.id); }
    [[nodiscard]] std::string name() const override { return get<"Workspace::name">(setup_.name); }
    [[nodiscard]] std::string productType() const override {
        return get<"Workspace::productType">(setup_.productType);
    }
    [[nodiscard]] core::Ptr<core::ToolbarPanels> toolbarPanels() const override {
        return get<"Workspace::toolbarPanels">(panelsApi_);
    }
    [[nodiscard]] core::Ptr<core::ToolbarTabs> toolbarTabs() const override {
        return get<"Workspace::toolbarTabs">(tabsApi_);
    }
    [[nodiscard]] bool isActive() const override;
    bool activate() override;

    [[nodiscard]] WorkspacesObject& owner() const { return *owner_; }
    [[nodiscard]] const std::string& identifier() const { return setup_.id; }
    [[nodiscard]] const std::string& caption() const { return setup_.name; }
    [[nodiscard]] const std::string& product() const { return setup_.productType; }
    [[nodiscard]] const TabList& tabs() const { return tabs_; }
    [[nodiscard]] PanelList panels() const;

    /// The tab that added panels go to; made when it is missing.
    ToolbarTabObject& toolsTab();
    void dispose();

private:
    WorkspacesObject* owner_;
    WorkspaceSetup setup_;
    TabList tabs_;
    core::Ptr<ToolbarPanelsObject> panelsApi_;
    core::Ptr<ToolbarTabsObject> tabsApi_;
};

/// All workspaces; one of them is active.
class WorkspacesObject final : public Object<core::Workspaces> {
public:
    WorkspacesObject(UserInterfaceObject* ui, const std::vector<WorkspaceSetup>& setups);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Workspace> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::Workspace> itemById(const std::string& id) const override;

    [[nodiscard]] core::Ptr<WorkspaceObject> find(const std::string& id) const;
    [[nodiscard]] const std::vector<core::Ptr<WorkspaceObject>>& all() const { return all_; }
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
    std::vector<core::Ptr<WorkspaceObject>> all_;
    core::Ptr<WorkspaceObject> active_;
};

class WorkspaceEventArgsObject final : public Arguments<core::WorkspaceEventArgs> {
public:
    WorkspaceEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::Workspace> workspace)
        : Arguments(std::move(event)), workspace_(std::move(workspace)) {}

    [[nodiscard]] core::Ptr<core::Workspace> workspace() const override {
        return get<"WorkspaceEventArgs::workspace">(workspace_);
    }

private:
    core::Ptr<core::Workspace> workspace_;
};

using WorkspaceEventObject = TypedEvent<core::WorkspaceEvent>;

}  // namespace host::ui
