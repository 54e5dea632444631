#pragma once

#include <Core/Collection.h>
#include <Core/Commands.h>
#include <Core/Values.h>

#include <string>

namespace adsk::core {

/// The definition of a command, as a button shows it: each press creates a new `Command` from it.
class CommandDefinition : public Base {
public:
    static const char* classType();  ///< "adsk::core::CommandDefinition"

    /// Unique among all definitions, and the id of its controls too.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The caption of its buttons and of its dialog.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Every button of the definition shows the new caption.
    virtual bool name(const std::string& value) = 0;

    /// What its buttons show while the pointer rests on them; may be empty.
    [[nodiscard]] virtual std::string tooltip() const = 0;
    /// Every button of the definition shows the new tooltip.
    virtual bool tooltip(const std::string& value) = 0;

    /// The folder of the button's icons, as it was set: absolute, or relative to the module's
    /// folder. Empty for a button without icons.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
    /// The folder is not checked; a missing icon is no failure.
    virtual bool resourceFolder(const std::string& value) = 0;

    /// Fired for each command created from it; handlers build the command's inputs and subscribe to
    /// its events.
    [[nodiscard]] virtual Ptr<CommandCreatedEvent> commandCreated() const = 0;

    /// Does what a press of the button does; true also when a handler then cancels the start.
    /// Within a notification the command starts only after the notification has returned. That of
    /// "SelectCommand" ends the running command. The argument is ignored and may be null.
    virtual bool execute(const Ptr<NamedValues>& input = nullptr) = 0;

    /// Removes it from the host; its controls stay, without function, until they are deleted too.
    /// False for one of the host's own.
    virtual bool deleteMe() = 0;
};

/// All command definitions, the host's own and the modules', in order of creation.
class CommandDefinitions : public CollectionById<CommandDefinition> {
public:
    static const char* classType();  ///< "adsk::core::CommandDefinitions"

    /// Adds a definition. Null when the id is in use, is empty, or has characters other than
    /// `A-Z a-z 0-9 _`. For `resourceFolder` see `CommandDefinition::resourceFolder`.
    virtual Ptr<CommandDefinition> addButtonDefinition(const std::string& id,
                                                       const std::string& name,
                                                       const std::string& tooltip,
                                                       const std::string& resourceFolder = "") = 0;
};

}  // namespace adsk::core
