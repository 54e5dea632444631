#pragma once

#include "host/base/events.h"
#include "host/ui/toolbar/toolbar_controls_object.h"

#include <Core/Toolbars.h>

#include <utility>
#include <vector>

/// The context menu, made again for each showing.
namespace host::ui {

struct LinearMarkingMenuState {
    core::Ptr<ToolbarControlsObject> controls;
};

class LinearMarkingMenuObject final : public Object<core::LinearMarkingMenu> {
public:
    LinearMarkingMenuObject()
        : state_{.controls = make<ToolbarControlsObject>(this, /*inPanel=*/false)} {}

    [[nodiscard]] core::Ptr<core::ToolbarControls> controls() const override {
        return get<"controls">(state_.controls);
    }

    [[nodiscard]] const LinearMarkingMenuState& state() const { return state_; }
    void dispose();

private:
    LinearMarkingMenuState state_;
};

class RadialMarkingMenuObject final : public Object<core::RadialMarkingMenu> {
public:
    RadialMarkingMenuObject() = default;

    void dispose() { invalidate(); }
};

class MarkingMenuEventArgsObject final : public Arguments<core::MarkingMenuEventArgs> {
public:
    MarkingMenuEventArgsObject(core::Ptr<core::Event> event,
                               core::Ptr<LinearMarkingMenuObject> linear,
                               core::Ptr<RadialMarkingMenuObject> radial,
                               std::vector<core::Ptr<core::Base>> selected)
        : Arguments(std::move(event)),
          linear_(std::move(linear)),
          radial_(std::move(radial)),
          selected_(std::move(selected)) {}

    [[nodiscard]] core::Ptr<core::LinearMarkingMenu> linearMarkingMenu() const override {
        return get<"linearMarkingMenu">(linear_);
    }
    [[nodiscard]] core::Ptr<core::RadialMarkingMenu> radialMarkingMenu() const override {
        return get<"radialMarkingMenu">(radial_);
    }
    [[nodiscard]] std::vector<core::Ptr<core::Base>> selectedEntities() const override {
        return get<"selectedEntities">(selected_);
    }

private:
    core::Ptr<LinearMarkingMenuObject> linear_;
    core::Ptr<RadialMarkingMenuObject> radial_;
    std::vector<core::Ptr<core::Base>> selected_;
};

using MarkingMenuEventObject = TypedEvent<core::MarkingMenuEvent>;

}  // namespace host::ui
