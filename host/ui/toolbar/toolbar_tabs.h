#pragma once

#include "host/ui/toolbar/toolbar_panels.h"

namespace host::ui {

/// The tabs of one workspace.
class ToolbarTabs final : public Object<core::ToolbarTabs> {
public:
    explicit ToolbarTabs(Workspace* workspace) : workspace_(workspace) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> itemById(const std::string& id) const override;
    void dispose();

private:
    Workspace* workspace_;
};

/// The tabs of all workspaces of one type of product.
class ToolbarTabList final : public Object<core::ToolbarTabList> {
public:
    ToolbarTabList(Workspaces* workspaces, std::string productType)
        : workspaces_(workspaces), productType_(std::move(productType)) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::ToolbarTab> itemById(const std::string& id) const override;

    [[nodiscard]] const std::string& identifier() const { return productType_; }
    void dispose();

private:
    Workspaces* workspaces_;
    std::string productType_;
};

}  // namespace host::ui
