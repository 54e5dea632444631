#pragma once

#include "host/base/events.h"
#include "host/ui/toolbar/toolbar_controls.h"

#include <Core/Toolbars.h>

#include <utility>
#include <vector>

/// The context menu, made again for each showing.
namespace host::ui {

class LinearMarkingMenu final : public Object<core::LinearMarkingMenu> {
public:
    LinearMarkingMenu() : controls_(make<ToolbarControls>(this, /*inPanel=*/false)) {}

    [[nodiscard]] core::Ptr<core::ToolbarControls> controls() const override;

    [[nodiscard]] const ToolbarControls& entries() const { return *controls_; }
    void dispose();

private:
    core::Ptr<ToolbarControls> controls_;
};

class RadialMarkingMenu final : public Object<core::RadialMarkingMenu> {
public:
    RadialMarkingMenu() = default;
};

class MarkingMenuArguments final : public Arguments<core::MarkingMenuEventArgs> {
public:
    MarkingMenuArguments(core::Ptr<core::Event> event, core::Ptr<LinearMarkingMenu> linear,
                         core::Ptr<RadialMarkingMenu> radial,
                         std::vector<core::Ptr<core::Base>> selected)
        : Arguments(std::move(event)),
          linear_(std::move(linear)),
          radial_(std::move(radial)),
          selected_(std::move(selected)) {}

    [[nodiscard]] core::Ptr<core::LinearMarkingMenu> linearMarkingMenu() const override;
    [[nodiscard]] core::Ptr<core::RadialMarkingMenu> radialMarkingMenu() const override;
    [[nodiscard]] std::vector<core::Ptr<core::Base>> selectedEntities() const override;

private:
    core::Ptr<LinearMarkingMenu> linear_;
    core::Ptr<RadialMarkingMenu> radial_;
    std::vector<core::Ptr<core::Base>> selected_;
};

using MarkingMenuEvent = TypedEvent<core::MarkingMenuEvent>;

}  // namespace host::ui
