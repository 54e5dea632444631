#pragma once

#include "host/base/events.h"
#include "host/ui/host_setup.h"
#include "host/ui/toolbar/toolbar_tabs.h"

#include <Core/Workspaces.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

class UserInterface;
class Workspaces;

/// A workspace with its toolbar.
class Workspace final : public Object<core::Workspace> {
public:
    Workspace(Workspaces* owner, WorkspaceSetup setup);

    [[nodiscard]] std::string id() const override;
    [[nodiscard]] std::string name() const override;
    [[nodiscard]] std::string productType() const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanels> toolbarPanels() const override;
    [[nodiscard]] core::Ptr<core::ToolbarTabs> toolbarTabs() const override;
    [[nodiscard]] bool isActive() const override;
    bool activate() override;

    [[nodiscard]] Workspaces& owner() const { return *owner_; }
    [[nodiscard]] const std::string& identifier() const { return setup_.id; }
    [[nodiscard]] const std::string& caption() const { return setup_.name; }
    [[nodiscard]] const std::string& product() const { return setup_.productType; }
    [[nodiscard]] const TabList& tabs() const { return tabs_; }
    [[nodiscard]] PanelList panels() const;

    /// The tab that added panels go to; made when it is missing.
    ToolbarTab& toolsTab();
    void dispose();

private:
    Workspaces* owner_;
    WorkspaceSetup setup_;
    TabList tabs_;
    core::Ptr<ToolbarPanels> panelsApi_;
    core::Ptr<ToolbarTabs> tabsApi_;
};

/// All workspaces; one of them is active.
class Workspaces final : public Object<core::Workspaces> {
public:
    Workspaces(UserInterface* ui, const std::vector<WorkspaceSetup>& setups);

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::Workspace> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::Workspace> itemById(const std::string& id) const override;

    [[nodiscard]] core::Ptr<Workspace> find(const std::string& id) const;
    [[nodiscard]] const std::vector<core::Ptr<Workspace>>& all() const { return all_; }
    [[nodiscard]] const core::Ptr<Workspace>& active() const { return active_; }

    /// The panel of this id in any workspace, null where there is none.
    [[nodiscard]] core::Ptr<ToolbarPanel> panel(const std::string& id) const;
    [[nodiscard]] PanelList panels() const;
    [[nodiscard]] TabList tabs(const std::string& productType) const;

    /// True inside any event of a command, where the workspace cannot change.
    [[nodiscard]] bool inCommandEvent() const;

    /// Shows a workspace and fires the events of the change, unless it is shown already.
    void activate(const core::Ptr<Workspace>& workspace);
    void dispose();

private:
    UserInterface* ui_;
    std::vector<core::Ptr<Workspace>> all_;
    core::Ptr<Workspace> active_;
};

class WorkspaceArguments final : public Arguments<core::WorkspaceEventArgs> {
public:
    WorkspaceArguments(core::Ptr<core::Event> event, core::Ptr<core::Workspace> workspace)
        : Arguments(std::move(event)), workspace_(std::move(workspace)) {}

    [[nodiscard]] core::Ptr<core::Workspace> workspace() const override;

private:
    core::Ptr<core::Workspace> workspace_;
};

using WorkspaceEvent = TypedEvent<core::WorkspaceEvent>;

}  // namespace host::ui
