#pragma once

#include "host/ui/toolbar/toolbar_panels_object.h"

#include <Core/Toolbars.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

using PanelList = std::vector<core::Ptr<ToolbarPanelObject>>;

struct ToolbarTabState {
    std::string id;
    std::string name;
};

/// One tab of a workspace's toolbar; owns its panels.
class ToolbarTabObject final : public Object<core::ToolbarTab> {
public:
    ToolbarTabObject(WorkspaceObject* workspace, const std::string& id, const std::string& name)
        : state_{.id = id, .name = name}, api_(make<ToolbarPanelsObject>(workspace, this)) {}

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override { return set<"name">(state_.name, value); }
    [[nodiscard]] core::Ptr<core::ToolbarPanels> toolbarPanels() const override {
        return get<"toolbarPanels">(api_);
    }

    [[nodiscard]] const ToolbarTabState& state() const { return state_; }
    [[nodiscard]] const PanelList& panels() const { return panels_; }

    /// Adds a panel at a place, at the end for one that does not exist.
    core::Ptr<ToolbarPanelObject> add(const std::string& id, const std::string& name, bool native,
                                      std::size_t place);
    void remove(ToolbarPanelObject& panel) { removeEntry(panels_, panel); }
    void dispose();

private:
    ToolbarTabState state_;
    PanelList panels_;
    core::Ptr<ToolbarPanelsObject> api_;
};

}  // namespace host::ui
