#pragma once

#include "host/ui/commands/command_events.h"

#include <Core/CommandDefinitions.h>

#include <string>

namespace host::ui {

class CommandDefinitionsObject;

struct CommandDefinitionState {
    std::string id;
    std::string name;
    std::string tooltip;
    std::string resourceFolder;
    bool native = false;  ///< the host's own, which cannot be deleted
};

class CommandDefinitionObject final : public Object<core::CommandDefinition> {
public:
    CommandDefinitionObject(CommandDefinitionsObject* owner, CommandDefinitionState state);

    [[nodiscard]] std::string id() const override { return get<"id">(state_.id); }
    [[nodiscard]] std::string name() const override { return get<"name">(state_.name); }
    bool name(const std::string& value) override { return set<"name">(state_.name, value); }
    [[nodiscard]] std::string tooltip() const override { return get<"tooltip">(state_.tooltip); }
    bool tooltip(const std::string& value) override {
        return set<"tooltip">(state_.tooltip, value);
    }
    [[nodiscard]] std::string resourceFolder() const override {
        return get<"resourceFolder">(state_.resourceFolder);
    }
    bool resourceFolder(const std::string& value) override {
        return set<"resourceFolder">(state_.resourceFolder, value);
    }
    [[nodiscard]] core::Ptr<core::CommandCreatedEvent> commandCreated() const override {
        return get<"commandCreated">(createdEvent);
    }
    bool execute(const core::Ptr<core::NamedValues>& input) override;
    bool deleteMe() override;

    [[nodiscard]] const CommandDefinitionState& state() const { return state_; }
    void dispose();

    const core::Ptr<CommandCreatedEventObject> createdEvent;

private:
    CommandDefinitionsObject* owner_;
    CommandDefinitionState state_;
};

}  // namespace host::ui
