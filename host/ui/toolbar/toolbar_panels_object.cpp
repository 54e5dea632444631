#include "host/ui/toolbar/toolbar_panels_object.h"

#include "host/ui/toolbar/workspaces_object.h"

namespace host::ui {

ToolbarPanelsObject::List ToolbarPanelsObject::all() const {
    return tab_ == nullptr ? workspace_->panels() : tab_->panels();
}

core::Ptr<core::ToolbarPanel> ToolbarPanelsObject::add(const std::string& id,
                                                       const std::string& name,
                                                       const std::string& positionID,
                                                       bool isBefore) {
    constexpr const char* kOperation = "ToolbarPanels::add";
    if (closed<"add">(*this)) return {};
    if (id.empty() || workspace_->owner().panel(id)) {
        misuse(kOperation, id.empty() ? "a panel needs an id" : "the id \"" + id + "\" is in use");
        return {};
    }
    ToolbarTabObject& tab = tab_ == nullptr ? workspace_->toolsTab() : *tab_;
    return tab.add(id, name, /*native=*/false, newPlaceIn(tab.panels(), positionID, isBefore));
}

void ToolbarPanelsObject::dispose() {
    workspace_ = nullptr;
    tab_ = nullptr;
    invalidate();
}

ToolbarPanelListObject::List ToolbarPanelListObject::all() const { return workspaces_->panels(); }

void ToolbarPanelListObject::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

}  // namespace host::ui
