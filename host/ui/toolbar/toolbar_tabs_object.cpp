#include "host/ui/toolbar/toolbar_tabs_object.h"

#include "host/ui/toolbar/workspaces_object.h"

namespace host::ui {

TabList ToolbarTabsObject::all() const { return workspace_->tabs(); }

void ToolbarTabsObject::dispose() {
    workspace_ = nullptr;
    invalidate();
}

TabList ToolbarTabListObject::all() const { return workspaces_->tabs(productType_); }

void ToolbarTabListObject::dispose() {
    workspaces_ = nullptr;
    invalidate();
}

}  // namespace host::ui
