#pragma once

#include "host/ui/commands/command_events.h"

#include <Core/CommandDefinitions.h>

#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

namespace host::ui {

class CommandDefinitionsObject;
class CommandRunner;

class CommandDefinitionObject final : public Object<core::CommandDefinition> {
public:
    CommandDefinitionObject(CommandDefinitionsObject* owner, std::string id, std::string name,
                            std::string tooltip, std::string resourceFolder, bool native);

    [[nodiscard]] std::string id() const override { return get<"CommandDefinition::id">(id_); }
    [[nodiscard]] std::string name() const override {
        return get<"CommandDefinition::name">(name_);
    }
    bool name(const std::string& value) override {
        return set<"CommandDefinition::name">(name_, value);
    }
    [[nodiscard]] std::string tooltip() const override {
        return get<"CommandDefinition::tooltip">(tooltip_);
    }
    bool tooltip(const std::string& value) override {
        return set<"CommandDefinition::tooltip">(tooltip_, value);
    }
    [[nodiscard]] std::string resourceFolder() const override {
        return get<"CommandDefinition::resourceFolder">(resourceFolder_);
    }
    bool resourceFolder(const std::string& value) override {
        return set<"CommandDefinition::resourceFolder">(resourceFolder_, value);
    }
    [[nodiscard]] core::Ptr<core::CommandCreatedEvent> commandCreated() const override {
        return get<"CommandDefinition::commandCreated">(createdEvent);
    }
    bool execute(const core::Ptr<core::NamedValues>& input) override;
    bool deleteMe() override;

    [[nodiscard]] const std::string& identifier() const { return id_; }
    [[nodiscard]] const std::string& caption() const { return name_; }
    void dispose();

    const core::Ptr<CommandCreatedEventObject> createdEvent;

private:
    CommandDefinitionsObject* owner_;
    std::string id_;
    std::string name_;
    std::string tooltip_;
    std::string resourceFolder_;
    bool native_;
};

class CommandDefinitionsObject final : public Object<core::CommandDefinitions> {
public:
    explicit CommandDefinitionsObject(CommandRunner* runner) : runner_(runner) {}

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::CommandDefinition> item(std::size_t index) const override;
    [[nodiscard]] core::Ptr<core::CommandDefinition> itemById(const std::string& id) const override;
    core::Ptr<core::CommandDefinition> addButtonDefinition(
        const std::string& id, const std::string& name, const std::string& tooltip,
        const std::string& resourceFolder) override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] CommandRunner& runner() const { return *runner_; }
    [[nodiscard]] core::Ptr<CommandDefinitionObject> find(const std::string& id) const;
    [[nodiscard]] const std::vector<core::Ptr<CommandDefinitionObject>>& all() const {
        return all_;
    }

    /// Adds a definition of the host's own, which cannot be deleted.
    core::Ptr<CommandDefinitionObject> addNative(const std::string& id, const std::string& name);
    void remove(CommandDefinitionObject& definition);
    void dispose();
    /// @}

private:
    CommandRunner* runner_;
    std::vector<core::Ptr<CommandDefinitionObject>> all_;
    std::unordered_map<std::string, core::Ptr<CommandDefinitionObject>> byId_;
};

}  // namespace host::ui
