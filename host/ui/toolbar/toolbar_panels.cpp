#include "host/ui/toolbar/toolbar_panels.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/entries.h"
#include "host/ui/toolbar/workspaces.h"

#include <algorithm>
#include <utility>

namespace host::ui {
ToolbarPanelObject::ToolbarPanelObject(ToolbarTabObject* owner, std::string id, std::string name,
                                       bool native)
    : owner_(owner),
      id_(std::move(id)),
      name_(std::move(name)),
      native_(native),
      controls_(make<ToolbarControlsObject>(this, /*inPanel=*/true)) {}

bool ToolbarPanelObject::deleteMe() {
    if (closed<"ToolbarPanel::deleteMe">(*this)) return {};
    if (native_) {
        return fail(core::OperationFailed, "ToolbarPanel::deleteMe: " + id_ + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void ToolbarPanelObject::dispose() {
    controls_->dispose();
    owner_ = nullptr;
    invalidate();
}

PanelList ToolbarPanelsObject::panels() const {
    return tab_ == nullptr ? workspace_->panels() : tab_->panels();
}

std::size_t ToolbarPanelsObject::count() const {
    if (closed<"ToolbarPanels::count">(*this)) return {};
    return panels().size();
}

core::Ptr<core::ToolbarPanel> ToolbarPanelsObject::item(std::size_t index) const {
    if (closed<"ToolbarPanels::item">(*this)) return {};
    return entryAt(panels(), index);
}

core::Ptr<core::ToolbarPanel> ToolbarPanelsObject::itemById(const std::string& id) const {
    if (closed<"ToolbarPanels::itemById">(*this)) return {};
    return entryOf(panels(), id);
}

core::Ptr<core::ToolbarPanel> ToolbarPanelsObject::add(const std::string& id,
                                                       const std::string& name,
                                                       const std::string& positionID,
                                                       bool isBefore) {
    constexpr const char* kOperation = "ToolbarPanels::add";
    if (closed<"ToolbarPanels::add">(*this)) return {};
    if (id.empty() || workspace_->owner().panel(id)) {
        misuse(kOperation, id.empty() ? "a panel needs an id" : "the id \"" + id + "\" is in use");
        return {};
    }
    ToolbarTabObject& tab = tab_ == nullptr ? workspace_->toolsTab() : *tab_;
    const PanelList& all = tab.panels();
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const core::Ptr<ToolbarPanelObject>& each) {
            return each->identifier() == positionID;
        });
    std::size_t place = static_cast<std::size_t>(found - all.begin());
    if (place < all.size() && !isBefore) {
        ++place;
    }
    return tab.add(id, name, /*native=*/false, place);
}

void ToolbarPanelsObject::dispose() {
    workspace_ = nullptr;
    tab_ = nullptr;
    invalidate();
}

std::size_t ToolbarPanelListObject::count() const {
    if (closed<"ToolbarPanelList::count">(*this)) return {};
    return workspaces_->panels().size();
}

core::Ptr<core::ToolbarPanel> ToolbarPanelListObject::item(std::size_t index) const {
    if (closed<"ToolbarPanelList::item">(*this)) return {};
    return entryAt(workspaces_->panels(), index);
}

core::Ptr<core::ToolbarPanel> ToolbarPanelListObject::itemById(const std::string& id) const {
    if (closed<"ToolbarPanelList::itemById">(*this)) return {};
    return entryOf(workspaces_->panels(), id);
}

void ToolbarPanelListObject::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

ToolbarTabObject::ToolbarTabObject(WorkspaceObject* workspace, std::string id, std::string name)
    : id_(std::move(id)),
      name_(std::move(name)),
      api_(make<ToolbarPanelsObject>(workspace, this)) {}

core::Ptr<ToolbarPanelObject> ToolbarTabObject::add(const std::string& id, const std::string& name,
                                                    bool native, std::size_t place) {
    const auto at = panels_.begin() + static_cast<std::ptrdiff_t>(std::min(place, panels_.size()));
    return *panels_.insert(at, make<ToolbarPanelObject>(this, id, name, native));
}

void ToolbarTabObject::remove(ToolbarPanelObject& panel) {
    const core::Ptr<ToolbarPanelObject> kept(&panel);
    std::erase(panels_, kept);
    panel.dispose();
}

void ToolbarTabObject::dispose() {
    for (const core::Ptr<ToolbarPanelObject>& each : panels_) {
        each->dispose();
    }
    panels_.clear();
    api_->dispose();
    invalidate();
}

}  // namespace host::ui
