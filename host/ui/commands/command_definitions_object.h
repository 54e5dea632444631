#pragma once

#include "host/ui/collection_object.h"
#include "host/ui/commands/command_definition_object.h"

#include <string>
#include <unordered_map>

namespace host::ui {

class CommandRunner;

/// All command definitions; owns them.
class CommandDefinitionsObject final
    : public CollectionObject<core::CommandDefinitions, CommandDefinitionObject> {
public:
    explicit CommandDefinitionsObject(CommandRunner* runner) : runner_(runner) {}

    core::Ptr<core::CommandDefinition> addButtonDefinition(
        const std::string& id, const std::string& name, const std::string& tooltip,
        const std::string& resourceFolder) override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] CommandRunner& runner() const { return *runner_; }
    [[nodiscard]] List all() const override { return all_; }
    [[nodiscard]] core::Ptr<CommandDefinitionObject> find(const std::string& id) const override;

    /// Adds a definition of the host's own, which cannot be deleted.
    core::Ptr<CommandDefinitionObject> addNative(const std::string& id, const std::string& name);
    void remove(CommandDefinitionObject& definition);
    void dispose();
    /// @}

private:
    core::Ptr<CommandDefinitionObject> append(const CommandDefinitionState& state);

    CommandRunner* runner_;
    List all_;
    std::unordered_map<std::string, core::Ptr<CommandDefinitionObject>> byId_;
};

}  // namespace host::ui
