#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/toolbar/toolbar_tab_object.h"

#include <string>
#include <utility>
#include <vector>

namespace host::ui {

using TabList = std::vector<core::Ptr<ToolbarTabObject>>;

/// The tabs of one workspace.
class ToolbarTabsObject final : public CollectionObject<core::ToolbarTabs, ToolbarTabObject> {
public:
    explicit ToolbarTabsObject(WorkspaceObject* workspace) : workspace_(workspace) {}

    [[nodiscard]] List all() const override;
    void dispose();

private:
    WorkspaceObject* workspace_;
};

/// The tabs of all workspaces of one type of product.
class ToolbarTabListObject final : public CollectionObject<core::ToolbarTabList, ToolbarTabObject> {
public:
    ToolbarTabListObject(WorkspacesObject* workspaces, std::string productType)
        : workspaces_(workspaces), productType_(std::move(productType)) {}

    [[nodiscard]] List all() const override;
    [[nodiscard]] const std::string& productType() const { return productType_; }
    void dispose();

private:
    WorkspacesObject* workspaces_;
    std::string productType_;
};

}  // namespace host::ui
