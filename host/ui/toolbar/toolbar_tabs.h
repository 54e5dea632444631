#pragma once

#include "host/ui/toolbar/toolbar_panels.h"

namespace host::ui {

/// The tabs of one workspace.
class ToolbarTabsObject final : public Object<core::ToolbarTabs> {
public:
    explicit ToolbarTabsObject(WorkspaceObject* workspace) : workspace_(workspace) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> itemById(const std::string& id) const override;
    void dispose();

private:
    WorkspaceObject* workspace_;
};

/// The tabs of all workspaces of one type of product.
class ToolbarTabListObject final : public Object<core::ToolbarTabList> {
public:
    ToolbarTabListObject(WorkspacesObject* workspaces, std::string productType)
        : workspaces_(workspaces), productType_(std::move(productType)) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> itemById(const std::string& id) const override;

    [[nodiscard]] const std::string& identifier() const { return productType_; }
    void dispose();

private:
    WorkspacesObject* workspaces_;
    std::string productType_;
};

}  // namespace host::ui
