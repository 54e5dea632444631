#pragma once

#include "host/ui/commands/command_definition_object.h"

#include <Core/Toolbars.h>

#include <cstddef>
#include <string>

namespace host::ui {

class ToolbarControlsObject;

struct CommandControlState {
    std::string id;
    core::Ptr<CommandDefinitionObject> definition;  ///< not valid once it was deleted
    bool visible = true;
    bool promoted = false;
};

class CommandControlObject final : public Object<core::CommandControl> {
public:
    CommandControlObject(ToolbarControlsObject* owner,
                         const core::Ptr<CommandDefinitionObject>& definition)
        : owner_(owner), state_{.id = definition->state().id, .definition = definition} {}

    [[nodiscard]] std::string id() const override { return get<"ToolbarControl::id">(state_.id); }
    [[nodiscard]] bool isVisible() const override {
        return get<"ToolbarControl::isVisible">(state_.visible);
    }
    bool isVisible(bool value) override {
        return set<"ToolbarControl::isVisible">(state_.visible, value);
    }
    [[nodiscard]] core::Ptr<core::Base> parent() const override;
    [[nodiscard]] std::size_t index() const override;
    bool deleteMe() override;
    [[nodiscard]] core::Ptr<core::CommandDefinition> commandDefinition() const override;
    [[nodiscard]] bool isPromoted() const override { return get<"isPromoted">(state_.promoted); }
    bool isPromoted(bool value) override;

    [[nodiscard]] const CommandControlState& state() const { return state_; }
    void dispose();

private:
    ToolbarControlsObject* owner_;
    CommandControlState state_;
};

}  // namespace host::ui
