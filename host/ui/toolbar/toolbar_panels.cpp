#include "host/ui/toolbar/toolbar_panels.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/entries.h"
#include "host/ui/toolbar/workspaces.h"

#include <algorithm>
#include <utility>

namespace host::ui {
ToolbarPanel::ToolbarPanel(ToolbarTab* owner, std::string id, std::string name, bool native)
    : owner_(owner),
      id_(std::move(id)),
      name_(std::move(name)),
      native_(native),
      controls_(make<ToolbarControls>(this, /*inPanel=*/true)) {}

std::string ToolbarPanel::id() const {
    if (closed<"ToolbarPanel::id">(*this)) return {};
    return id_;
}

std::string ToolbarPanel::name() const {
    if (closed<"ToolbarPanel::name">(*this)) return {};
    return name_;
}

core::Ptr<core::ToolbarControls> ToolbarPanel::controls() const {
    if (closed<"ToolbarPanel::controls">(*this)) return {};
    return controls_;
}

bool ToolbarPanel::deleteMe() {
    if (closed<"ToolbarPanel::deleteMe">(*this)) return {};
    if (native_) {
        return fail(core::OperationFailed, "ToolbarPanel::deleteMe: " + id_ + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void ToolbarPanel::dispose() {
    controls_->dispose();
    owner_ = nullptr;
    invalidate();
}

PanelList ToolbarPanels::panels() const {
    return tab_ == nullptr ? workspace_->panels() : tab_->panels();
}

std::size_t ToolbarPanels::count() const {
    if (closed<"ToolbarPanels::count">(*this)) return {};
    return panels().size();
}

core::Ptr<core::ToolbarPanel> ToolbarPanels::item(std::size_t index) const {
    if (closed<"ToolbarPanels::item">(*this)) return {};
    return entryAt(panels(), index);
}

core::Ptr<core::ToolbarPanel> ToolbarPanels::itemById(const std::string& id) const {
    if (closed<"ToolbarPanels::itemById">(*this)) return {};
    return entryOf(panels(), id);
}

core::Ptr<core::ToolbarPanel> ToolbarPanels::add(const std::string& id, const std::string& name,
                                                 const std::string& positionID, bool isBefore) {
    constexpr const char* kOperation = "ToolbarPanels::add";
    if (closed<"ToolbarPanels::add">(*this)) return {};
    if (id.empty() || workspace_->owner().panel(id)) {
        misuse(kOperation, id.empty() ? "a panel needs an id" : "the id \"" + id + "\" is in use");
        return {};
    }
    ToolbarTab& tab = tab_ == nullptr ? workspace_->toolsTab() : *tab_;
    const PanelList& all = tab.panels();
    const auto found = std::find_if(
        all.begin(), all.end(),
        [&](const core::Ptr<ToolbarPanel>& each) { return each->identifier() == positionID; });
    std::size_t place = static_cast<std::size_t>(found - all.begin());
    if (place < all.size() && !isBefore) {
        ++place;
    }
    return tab.add(id, name, /*native=*/false, place);
}

void ToolbarPanels::dispose() {
    workspace_ = nullptr;
    tab_ = nullptr;
    invalidate();
}

std::size_t ToolbarPanelList::count() const {
    if (closed<"ToolbarPanelList::count">(*this)) return {};
    return workspaces_->panels().size();
}

core::Ptr<core::ToolbarPanel> ToolbarPanelList::item(std::size_t index) const {
    if (closed<"ToolbarPanelList::item">(*this)) return {};
    return entryAt(workspaces_->panels(), index);
}

core::Ptr<core::ToolbarPanel> ToolbarPanelList::itemById(const std::string& id) const {
    if (closed<"ToolbarPanelList::itemById">(*this)) return {};
    return entryOf(workspaces_->panels(), id);
}

void ToolbarPanelList::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

ToolbarTab::ToolbarTab(Workspace* workspace, std::string id, std::string name)
    : id_(std::move(id)), name_(std::move(name)), api_(make<ToolbarPanels>(workspace, this)) {}

std::string ToolbarTab::id() const {
    if (closed<"ToolbarTab::id">(*this)) return {};
    return id_;
}

std::string ToolbarTab::name() const {
    if (closed<"ToolbarTab::name">(*this)) return {};
    return name_;
}

core::Ptr<core::ToolbarPanels> ToolbarTab::toolbarPanels() const {
    if (closed<"ToolbarTab::toolbarPanels">(*this)) return {};
    return api_;
}

core::Ptr<ToolbarPanel> ToolbarTab::add(const std::string& id, const std::string& name, bool native,
                                        std::size_t place) {
    const auto at = panels_.begin() + static_cast<std::ptrdiff_t>(std::min(place, panels_.size()));
    return *panels_.insert(at, make<ToolbarPanel>(this, id, name, native));
}

void ToolbarTab::remove(ToolbarPanel& panel) {
    const core::Ptr<ToolbarPanel> kept(&panel);
    std::erase(panels_, kept);
    panel.dispose();
}

void ToolbarTab::dispose() {
    for (const core::Ptr<ToolbarPanel>& each : panels_) {
        each->dispose();
    }
    panels_.clear();
    api_->dispose();
    invalidate();
}

}  // namespace host::ui
