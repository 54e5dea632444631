#pragma once

#include <Core/Collection.h>
#include <Core/Commands.h>

#include <string>

namespace adsk::core {

class NamedValues;

/// What a button stands for: each press makes a new command of it.
class CommandDefinition : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    [[nodiscard]] virtual std::string tooltip() const = 0;
    virtual bool tooltip(const std::string& value) = 0;

    /// The folder with the pictures of the button, as it was given.
    [[nodiscard]] virtual std::string resourceFolder() const = 0;
    virtual bool resourceFolder(const std::string& value) = 0;

    /// Fired for each command made of it; handlers build the command's inputs and subscribe to its
    /// events.
    [[nodiscard]] virtual Ptr<CommandCreatedEvent> commandCreated() const = 0;

    /// Does what a press of the button does. Inside a notification the command starts when the host
    /// has come back from it. The argument is ignored.
    virtual bool execute(const Ptr<NamedValues>& input = nullptr) = 0;

    /// Takes it out of the host; its controls stay and do nothing. False for one of the host's own.
    virtual bool deleteMe() = 0;
};

/// All definitions of the host.
class CommandDefinitions : public CollectionById<CommandDefinition> {
public:
    static const char* classType();

    /// Makes a definition. Null where the id is in use, empty, or has other characters than
    /// `A-Z a-z 0-9 _`.
    virtual Ptr<CommandDefinition> addButtonDefinition(const std::string& id,
                                                       const std::string& name,
                                                       const std::string& tooltip,
                                                       const std::string& resourceFolder = "") = 0;
};

/// Named values that an execution could be given; none are used.
class NamedValues : public Base {
public:
    static const char* classType();
};

}  // namespace adsk::core
