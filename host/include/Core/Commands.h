#pragma once

#include <Core/Enums.h>
#include <Core/Event.h>

#include <string>

/// A command lives from the press of a button to its end. Its events come in this order:
/// commandCreated of its definition; where it has inputs, `activate` once its dialog shows, then
/// any number of `inputChanged`, `validateInputs` and `executePreview`; `execute` unless it is
/// cancelled; `deactivate`; `destroy`.
namespace adsk::core {

class Command;
class CommandDefinition;
class CommandInput;
class CommandInputs;

class CommandCreatedEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Command> command() const = 0;
};

class CommandCreatedEventHandler : public EventHandlerOf<CommandCreatedEventArgs> {};

class CommandCreatedEvent : public EventOf<CommandCreatedEventHandler> {
public:
    static const char* classType();
};

class CommandEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Command> command() const = 0;

    /// A handler sets it to take back what it did; the command then ends as aborted.
    [[nodiscard]] virtual bool executeFailed() const = 0;
    virtual bool executeFailed(bool value) = 0;

    [[nodiscard]] virtual std::string executeFailedMessage() const = 0;
    virtual bool executeFailedMessage(const std::string& value) = 0;

    /// A preview sets it to stand for the execution as it is.
    [[nodiscard]] virtual bool isValidResult() const = 0;
    virtual bool isValidResult(bool value) = 0;

    /// How the command ended; only in `destroy`, else unknown.
    [[nodiscard]] virtual CommandTerminationReason terminationReason() const = 0;
};

class CommandEventHandler : public EventHandlerOf<CommandEventArgs> {};

class CommandEvent : public EventOf<CommandEventHandler> {
public:
    static const char* classType();
};

class InputChangedEventArgs : public EventArgs {
public:
    static const char* classType();

    /// What the user changed. A change of tab comes as an input of the id "APITabBar".
    [[nodiscard]] virtual Ptr<CommandInput> input() const = 0;

    /// The collection that the changed input belongs to: the children of its tab or group, else the
    /// command's.
    [[nodiscard]] virtual Ptr<CommandInputs> inputs() const = 0;
};

class InputChangedEventHandler : public EventHandlerOf<InputChangedEventArgs> {};

class InputChangedEvent : public EventOf<InputChangedEventHandler> {
public:
    static const char* classType();
};

class ValidateInputsEventArgs : public EventArgs {
public:
    static const char* classType();

    /// True at first; a handler sets it to false to keep the user from accepting the dialog.
    [[nodiscard]] virtual bool areInputsValid() const = 0;
    virtual bool areInputsValid(bool value) = 0;

    [[nodiscard]] virtual Ptr<CommandInputs> inputs() const = 0;
};

class ValidateInputsEventHandler : public EventHandlerOf<ValidateInputsEventArgs> {};

class ValidateInputsEvent : public EventOf<ValidateInputsEventHandler> {
public:
    static const char* classType();
};

class ApplicationCommandEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string commandId() const = 0;
    [[nodiscard]] virtual Ptr<CommandDefinition> commandDefinition() const = 0;

    /// How the command ended; only in `commandTerminated`, else unknown.
    [[nodiscard]] virtual CommandTerminationReason terminationReason() const = 0;

    /// Keeps the command from starting; only in `commandStarting`.
    [[nodiscard]] virtual bool isCanceled() const = 0;
    virtual bool isCanceled(bool value) = 0;
};

class ApplicationCommandEventHandler : public EventHandlerOf<ApplicationCommandEventArgs> {};

class ApplicationCommandEvent : public EventOf<ApplicationCommandEventHandler> {
public:
    static const char* classType();
};

/// One run of a command definition.
class Command : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<CommandInputs> commandInputs() const = 0;
    [[nodiscard]] virtual Ptr<CommandDefinition> parentCommandDefinition() const = 0;

    [[nodiscard]] virtual Ptr<CommandEvent> execute() const = 0;
    [[nodiscard]] virtual Ptr<CommandEvent> executePreview() const = 0;
    [[nodiscard]] virtual Ptr<CommandEvent> activate() const = 0;
    [[nodiscard]] virtual Ptr<CommandEvent> deactivate() const = 0;
    [[nodiscard]] virtual Ptr<CommandEvent> destroy() const = 0;
    [[nodiscard]] virtual Ptr<InputChangedEvent> inputChanged() const = 0;
    [[nodiscard]] virtual Ptr<ValidateInputsEvent> validateInputs() const = 0;

    /// The text of the button that accepts the dialog, "OK" at first.
    [[nodiscard]] virtual std::string okButtonText() const = 0;
    virtual bool okButtonText(const std::string& value) = 0;

    /// The text of the button that cancels the dialog, "Cancel" at first.
    [[nodiscard]] virtual std::string cancelButtonText() const = 0;
    virtual bool cancelButtonText(const std::string& value) = 0;

    [[nodiscard]] virtual bool isOKButtonVisible() const = 0;
    virtual bool isOKButtonVisible(bool value) = 0;

    /// Whether a command without inputs executes by itself, true at first.
    [[nodiscard]] virtual bool isAutoExecute() const = 0;
    virtual bool isAutoExecute(bool value) = 0;

    /// Whether it executes when another command takes its place and its inputs are valid, true at
    /// first.
    [[nodiscard]] virtual bool isExecutedWhenPreEmpted() const = 0;
    virtual bool isExecutedWhenPreEmpted(bool value) = 0;

    /// Whether the user can repeat it from the menu, true at first.
    [[nodiscard]] virtual bool isRepeatable() const = 0;
    virtual bool isRepeatable(bool value) = 0;

    /// The size that the dialog opens with, in pixels; only before it shows.
    virtual bool setDialogInitialSize(int width, int height) = 0;

    /// The size below which the user cannot make the dialog, in pixels.
    virtual bool setDialogMinimumSize(int width, int height) = 0;

    /// Executes it as if the user had accepted the dialog, and ends it where `terminate` is true.
    virtual bool doExecute(bool terminate) = 0;
};

}  // namespace adsk::core
