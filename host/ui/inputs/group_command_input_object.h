#pragma once

#include "host/base/last_error.h"
#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/container_state.h"

namespace host::ui {

/// How a group looks.
struct GroupState {
    bool expanded = true;
    bool checkBoxDisplayed = false;
    bool checkBoxChecked = true;
};

class GroupCommandInputObject final
    : public CommandInputObject<core::GroupCommandInput, ContainerState> {
public:
    explicit GroupCommandInputObject(const InputOrigin& origin)
        : CommandInputObject(origin, InputKind::Group) {}

    [[nodiscard]] core::Ptr<core::CommandInputs> children() const override {
        return get<"children">(insideApi());
    }
    [[nodiscard]] bool isExpanded() const override { return get<"isExpanded">(state_.expanded); }
    bool isExpanded(bool value) override {
        if (closed<"isExpanded">(*this)) return {};
        if (!value && !canCollapse()) {
            return fail(core::OperationFailed,
                        "GroupCommandInput::isExpanded: a group within a group stays expanded");
        }
        state_.expanded = value;
        return true;
    }
    [[nodiscard]] bool isEnabledCheckBoxDisplayed() const override {
        return get<"isEnabledCheckBoxDisplayed">(state_.checkBoxDisplayed);
    }
    bool isEnabledCheckBoxDisplayed(bool value) override {
        return set<"isEnabledCheckBoxDisplayed">(state_.checkBoxDisplayed, value);
    }
    [[nodiscard]] bool isEnabledCheckBoxChecked() const override {
        return get<"isEnabledCheckBoxChecked">(state_.checkBoxChecked);
    }
    bool isEnabledCheckBoxChecked(bool value) override {
        return set<"isEnabledCheckBoxChecked">(state_.checkBoxChecked, value);
    }

    [[nodiscard]] const GroupState& state() const { return state_; }

    /// Whether it can be collapsed: within another group only if its heading has a check box.
    [[nodiscard]] bool canCollapse() const {
        return state_.checkBoxDisplayed || parent() == nullptr ||
               parent()->kind != InputKind::Group;
    }

    /// Clicks its heading, as the user does.
    void toggle() { state_.expanded = !state_.expanded; }

private:
    GroupState state_;
};

}  // namespace host::ui
