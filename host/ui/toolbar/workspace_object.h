#pragma once

#include "host/ui/host_setup.h"
#include "host/ui/toolbar/toolbar_tabs_object.h"

#include <Core/Workspaces.h>

#include <string>

namespace host::ui {

class WorkspacesObject;

/// A workspace with its toolbar.
class WorkspaceObject final : public Object<core::Workspace> {
public:
    WorkspaceObject(WorkspacesObject* owner, WorkspaceSetup setup);

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    [[nodiscard]] std::string productType() const override {
        return get<"productType">(state_.productType);
    }
    [[nodiscard]] core::Ptr<core::ToolbarPanels> toolbarPanels() const override {
        return get<"toolbarPanels">(panelsApi_);
    }
    [[nodiscard]] core::Ptr<core::ToolbarTabs> toolbarTabs() const override {
        return get<"toolbarTabs">(tabsApi_);
    }
    [[nodiscard]] bool isActive() const override;
    bool activate() override;

    [[nodiscard]] const WorkspaceSetup& state() const { return state_; }
    [[nodiscard]] WorkspacesObject& owner() const { return *owner_; }
    [[nodiscard]] const TabList& tabs() const { return tabs_; }
    [[nodiscard]] PanelList panels() const;

    /// The tab of an id; made, at the end, when it is missing.
    ToolbarTabObject& tab(const std::string& id, const std::string& name);

    /// The tab that added panels go to; made when it is missing.
    ToolbarTabObject& toolsTab();
    void dispose();

private:
    WorkspacesObject* owner_;
    WorkspaceSetup state_;
    TabList tabs_;
    core::Ptr<ToolbarPanelsObject> panelsApi_;
    core::Ptr<ToolbarTabsObject> tabsApi_;
};

}  // namespace host::ui
