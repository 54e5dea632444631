#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/toolbar/toolbar_panel_object.h"

#include <string>

namespace host::ui {

class ToolbarTabObject;
class WorkspaceObject;
class WorkspacesObject;

/// The panels of a tab, or of a workspace over all of its tabs.
class ToolbarPanelsObject final : public CollectionObject<core::ToolbarPanels, ToolbarPanelObject> {
public:
    /// `tab` is null for the panels of the workspace.
    ToolbarPanelsObject(WorkspaceObject* workspace, ToolbarTabObject* tab)
        : workspace_(workspace), tab_(tab) {}

    core::Ptr<core::ToolbarPanel> add(const std::string& id, const std::string& name,
                                      const std::string& positionID, bool isBefore) override;

    [[nodiscard]] List all() const override;
    void dispose();

private:
    WorkspaceObject* workspace_;
    ToolbarTabObject* tab_;
};

/// The panels of all workspaces.
class ToolbarPanelListObject final
    : public CollectionObject<core::ToolbarPanelList, ToolbarPanelObject> {
public:
    explicit ToolbarPanelListObject(WorkspacesObject* workspaces) : workspaces_(workspaces) {}

    [[nodiscard]] List all() const override;
    void dispose();

private:
    WorkspacesObject* workspaces_;
};

}  // namespace host::ui
