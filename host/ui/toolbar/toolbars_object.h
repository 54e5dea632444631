#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/toolbar/toolbar_controls_object.h"

#include <Core/Toolbars.h>

#include <string>
#include <vector>

namespace host::ui {

struct ToolbarState {
    std::string id;
    bool visible = true;
    core::Ptr<ToolbarControlsObject> controls;
};

/// A bar of controls around the window.
class ToolbarObject final : public Object<core::Toolbar> {
public:
    explicit ToolbarObject(const std::string& id)
        : state_{.id = id, .controls = make<ToolbarControlsObject>(this, /*inPanel=*/false)} {}

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] core::Ptr<core::ToolbarControls> controls() const override {
        return get<"controls">(state_.controls);
    }
    [[nodiscard]] bool isVisible() const override { return get<"isVisible">(state_.visible); }
    bool isVisible(bool value) override { return set<"isVisible">(state_.visible, value); }

    [[nodiscard]] const ToolbarState& state() const { return state_; }
    void dispose() {
        state_.controls->dispose();
        invalidate();
    }

private:
    ToolbarState state_;
};

/// All bars around the window; owns them.
class ToolbarsObject final : public CollectionObject<core::Toolbars, ToolbarObject> {
public:
    explicit ToolbarsObject(const std::vector<std::string>& ids) {
        for (const std::string& each : ids) {
            all_.push_back(make<ToolbarObject>(each));
        }
    }

    [[nodiscard]] List all() const override { return all_; }
    void dispose() {
        disposeEntries(all_);
        invalidate();
    }

private:
    List all_;
};

}  // namespace host::ui
