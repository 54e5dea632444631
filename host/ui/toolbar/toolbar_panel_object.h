#pragma once

#include "host/ui/toolbar/toolbar_controls_object.h"

#include <Core/Toolbars.h>

#include <string>

namespace host::ui {

class ToolbarTabObject;

struct ToolbarPanelState {
    std::string id;
    std::string name;
    bool native = false;  ///< the host's own, which cannot be deleted
    core::Ptr<ToolbarControlsObject> controls;
};

class ToolbarPanelObject final : public Object<core::ToolbarPanel> {
public:
    ToolbarPanelObject(ToolbarTabObject* owner, const std::string& id, const std::string& name,
                       bool native)
        : owner_(owner),
          state_{.id = id,
                 .name = name,
                 .native = native,
                 .controls = make<ToolbarControlsObject>(this, /*inPanel=*/true)} {}

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override { return set<"name">(state_.name, value); }
    [[nodiscard]] core::Ptr<core::ToolbarControls> controls() const override {
        return get<"controls">(state_.controls);
    }
    bool deleteMe() override;

    [[nodiscard]] const ToolbarPanelState& state() const { return state_; }
    void dispose();

private:
    ToolbarTabObject* owner_;
    ToolbarPanelState state_;
};

}  // namespace host::ui
