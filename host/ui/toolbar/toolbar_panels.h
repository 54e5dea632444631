#pragma once

#include "host/ui/toolbar/toolbar_controls.h"

#include <Core/Toolbars.h>

#include <cstddef>
#include <string>
#include <vector>

/// The tabs of the toolbar and the panels in them.
namespace host::ui {

class ToolbarTabObject;
class WorkspaceObject;
class WorkspacesObject;

class ToolbarPanelObject final : public Object<core::ToolbarPanel> {
public:
    ToolbarPanelObject(ToolbarTabObject* owner, std::string id, std::string name, bool native);

    [[nodiscard]] std::string id() const override { return get<"ToolbarPanel::id">(id_); }
    [[nodiscard]] std::string name() const override { return get<"ToolbarPanel::name">(name_); }
    [[nodiscard]] core::Ptr<core::ToolbarControls> controls() const override {
        return get<"ToolbarPanel::controls">(controls_);
    }
    bool deleteMe() override;

    [[nodiscard]] const std::string& identifier() const { return id_; }
    [[nodiscard]] const std::string& caption() const { return name_; }
    [[nodiscard]] ToolbarControlsObject& buttons() const { return *controls_; }
    void dispose();

private:
    ToolbarTabObject* owner_;
    std::string id_;
    std::string name_;
    bool native_;
    core::Ptr<ToolbarControlsObject> controls_;
};

using PanelList = std::vector<core::Ptr<ToolbarPanelObject>>;

/// The panels of a tab, or of a workspace over all of its tabs.
class ToolbarPanelsObject final : public Object<core::ToolbarPanels> {
public:
    /// `tab` is null for the panels of the workspace.
    ToolbarPanelsObject(WorkspaceObject* workspace, ToolbarTabObject* tab)
        : workspace_(workspace), tab_(tab) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanel> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanel> itemById(const std::string& id) const override;
    core::Ptr<core::ToolbarPanel> add(const std::string& id, const std::string& name,
                                      const std::string& positionID, bool isBefore) override;
    void dispose();

private:
    [[nodiscard]] PanelList panels() const;

    WorkspaceObject* workspace_;
    ToolbarTabObject* tab_;
};

/// The panels of all workspaces.
class ToolbarPanelListObject final : public Object<core::ToolbarPanelList> {
public:
    explicit ToolbarPanelListObject(WorkspacesObject* workspaces) : workspaces_(workspaces) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanel> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanel> itemById(const std::string& id) const override;
    void dispose();

private:
    WorkspacesObject* workspaces_;
};

/// One tab of a workspace's toolbar; owns its panels.
class ToolbarTabObject final : public Object<core::ToolbarTab> {
public:
    ToolbarTabObject(WorkspaceObject* workspace, std::string id, std::string name);

    [[nodiscard]] std::string id() const override { return get<"ToolbarTab::id">(id_); }
    [[nodiscard]] std::string name() const override { return get<"ToolbarTab::name">(name_); }
    [[nodiscard]] core::Ptr<core::ToolbarPanels> toolbarPanels() const override {
        return get<"ToolbarTab::toolbarPanels">(api_);
    }

    [[nodiscard]] const std::string& identifier() const { return id_; }
    [[nodiscard]] const PanelList& panels() const { return panels_; }

    /// Adds a panel at a place, at the end for one that does not exist.
    core::Ptr<ToolbarPanelObject> add(const std::string& id, const std::string& name, bool native,
                                      std::size_t place);
    void remove(ToolbarPanelObject& panel);
    void dispose();

private:
    std::string id_;
    std::string name_;
    PanelList panels_;
    core::Ptr<ToolbarPanelsObject> api_;
};

using TabList = std::vector<core::Ptr<ToolbarTabObject>>;

}  // namespace host::ui
