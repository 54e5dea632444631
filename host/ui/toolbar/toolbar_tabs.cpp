#include "host/ui/toolbar/toolbar_tabs.h"

#include "host/ui/toolbar/entries.h"
#include "host/ui/toolbar/workspaces.h"

namespace host::ui {

std::size_t ToolbarTabsObject::count() const {
    if (closed<"ToolbarTabs::count">(*this)) return {};
    return workspace_->tabs().size();
}

core::Ptr<core::ToolbarTab> ToolbarTabsObject::item(std::size_t index) const {
    if (closed<"ToolbarTabs::item">(*this)) return {};
    return entryAt(workspace_->tabs(), index);
}

core::Ptr<core::ToolbarTab> ToolbarTabsObject::itemById(const std::string& id) const {
    if (closed<"ToolbarTabs::itemById">(*this)) return {};
    return entryOf(workspace_->tabs(), id);
}

void ToolbarTabsObject::dispose() {
    workspace_ = nullptr;
    invalidate();
}

std::size_t ToolbarTabListObject::count() const {
    if (closed<"ToolbarTabList::count">(*this)) return {};
    return workspaces_->tabs(productType_).size();
}

core::Ptr<core::ToolbarTab> ToolbarTabListObject::item(std::size_t index) const {
    if (closed<"ToolbarTabList::item">(*this)) return {};
    return entryAt(workspaces_->tabs(productType_), index);
}

core::Ptr<core::ToolbarTab> ToolbarTabListObject::itemById(const std::string& id) const {
    if (closed<"ToolbarTabList::itemById">(*this)) return {};
    return entryOf(workspaces_->tabs(productType_), id);
}

void ToolbarTabListObject::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

}  // namespace host::ui
