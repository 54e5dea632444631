#include "host/ui/toolbar/toolbar_tabs.h"

#include "host/ui/toolbar/entries.h"
#include "host/ui/toolbar/workspaces.h"

namespace host::ui {

std::size_t ToolbarTabs::count() const {
    if (closed<"ToolbarTabs::count">(*this)) return {};
    return workspace_->tabs().size();
}

core::Ptr<core::ToolbarTab> ToolbarTabs::item(std::size_t index) const {
    if (closed<"ToolbarTabs::item">(*this)) return {};
    return entryAt(workspace_->tabs(), index);
}

core::Ptr<core::ToolbarTab> ToolbarTabs::itemById(const std::string& id) const {
    if (closed<"ToolbarTabs::itemById">(*this)) return {};
    return entryOf(workspace_->tabs(), id);
}

void ToolbarTabs::dispose() {
    workspace_ = nullptr;
    invalidate();
}

std::size_t ToolbarTabList::count() const {
    if (closed<"ToolbarTabList::count">(*this)) return {};
    return workspaces_->tabs(productType_).size();
}

core::Ptr<core::ToolbarTab> ToolbarTabList::item(std::size_t index) const {
    if (closed<"ToolbarTabList::item">(*this)) return {};
    return entryAt(workspaces_->tabs(productType_), index);
}

core::Ptr<core::ToolbarTab> ToolbarTabList::itemById(const std::string& id) const {
    if (closed<"ToolbarTabList::itemById">(*this)) return {};
    return entryOf(workspaces_->tabs(productType_), id);
}

void ToolbarTabList::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

}  // namespace host::ui
