#pragma once

#include <Core/Enums.h>
#include <Core/Event.h>

#include <string>

/// A command lives from the press of a button to its end. Its events come in this order:
/// `commandCreated` of its definition; when it has inputs, `activate` once its dialog shows, then
/// any number of `inputChanged`, `validateInputs` and `executePreview`; `execute` unless it is
/// cancelled; `deactivate`; `destroy`.
namespace adsk::core {

class Command;
class CommandDefinition;
class CommandInput;
class CommandInputs;

/// A command has been created; its inputs and handlers are added now.
class CommandCreatedEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::CommandCreatedEventArgs"

    /// The new command; never null.
    [[nodiscard]] virtual Ptr<Command> command() const = 0;
};

/// Notified when a command is created. A command without inputs whose handler throws here is not
/// executed and ends as aborted.
class CommandCreatedEventHandler : public EventHandlerOf<CommandCreatedEventArgs> {};

/// The event of `CommandDefinition::commandCreated`.
class CommandCreatedEvent : public EventOf<CommandCreatedEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::CommandCreatedEvent"
};

/// A command executes, previews, is activated, is deactivated or ends.
class CommandEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::CommandEventArgs"

    /// The command; never null. After `destroy` it is no longer valid.
    [[nodiscard]] virtual Ptr<Command> command() const = 0;

    /// False at first.
    [[nodiscard]] virtual bool executeFailed() const = 0;
    /// In `execute`, true ends the command as aborted and undoes what it did to the design. Without
    /// effect in other events.
    virtual bool executeFailed(bool value) = 0;

    /// The reason to give for `executeFailed`; empty at first.
    [[nodiscard]] virtual std::string executeFailedMessage() const = 0;
    /// Kept; this host shows it nowhere.
    virtual bool executeFailedMessage(const std::string& value) = 0;

    /// False at first.
    [[nodiscard]] virtual bool isValidResult() const = 0;
    /// In `executePreview`, true lets the preview count as the execution: OK keeps it and does not
    /// fire `execute`. Without effect in other events.
    virtual bool isValidResult(bool value) = 0;

    /// How the command ended. Known in `destroy` alone, otherwise `UnknownTerminationReason`.
    [[nodiscard]] virtual CommandTerminationReason terminationReason() const = 0;
};

/// Notified of the stages of one command. A handler of `execute` that throws does not fail the
/// command: what it wrote stays.
class CommandEventHandler : public EventHandlerOf<CommandEventArgs> {};

/// The event of `Command::execute` and its like.
class CommandEvent : public EventOf<CommandEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::CommandEvent"
};

/// The user changed an input of the open dialog.
class InputChangedEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::InputChangedEventArgs"

    /// What was changed; never null. A change of tab is reported as an input with the id
    /// "APITabBar", which no collection contains; the new tab is already active.
    [[nodiscard]] virtual Ptr<CommandInput> input() const = 0;

    /// The collection that the changed input belongs to: the children of its tab or group,
    /// otherwise the command's own, as for a change of tab.
    [[nodiscard]] virtual Ptr<CommandInputs> inputs() const = 0;
};

/// Notified of each change by the user: each key press in a string, each click. The dialog stays
/// open when it throws.
class InputChangedEventHandler : public EventHandlerOf<InputChangedEventArgs> {};

/// The event of `Command::inputChanged`.
class InputChangedEvent : public EventOf<InputChangedEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::InputChangedEvent"
};

/// The host asks whether the dialog may be accepted.
class ValidateInputsEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::ValidateInputsEventArgs"

    /// True at first, unless an earlier handler of this notification set it.
    [[nodiscard]] virtual bool areInputsValid() const = 0;
    /// False disables OK until the next validation; true does not override the host's own checks,
    /// such as the limits of selections.
    virtual bool areInputsValid(bool value) = 0;

    /// The command's own collection; never null.
    [[nodiscard]] virtual Ptr<CommandInputs> inputs() const = 0;
};

/// Notified when the dialog opens and after each change except a change of tab.
class ValidateInputsEventHandler : public EventHandlerOf<ValidateInputsEventArgs> {};

/// The event of `Command::validateInputs`.
class ValidateInputsEvent : public EventOf<ValidateInputsEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::ValidateInputsEvent"
};

/// Any command of the host starts, has been created or has ended.
class ApplicationCommandEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::ApplicationCommandEventArgs"

    /// The id of the command's definition.
    [[nodiscard]] virtual std::string commandId() const = 0;

    /// The command's definition; not valid if it was deleted while its command ran.
    [[nodiscard]] virtual Ptr<CommandDefinition> commandDefinition() const = 0;

    /// How the command ended. Known in `commandTerminated` alone, otherwise
    /// `UnknownTerminationReason`.
    [[nodiscard]] virtual CommandTerminationReason terminationReason() const = 0;

    /// Whether a handler has kept the command from starting; false at first.
    [[nodiscard]] virtual bool isCanceled() const = 0;
    /// True keeps the command from starting. False outside `commandStarting`.
    virtual bool isCanceled(bool value) = 0;
};

/// Notified of the commands of all modules and of the host.
class ApplicationCommandEventHandler : public EventHandlerOf<ApplicationCommandEventArgs> {};

/// The event of `UserInterface::commandStarting` and its like.
class ApplicationCommandEvent : public EventOf<ApplicationCommandEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::ApplicationCommandEvent"
};

/// One run of a command definition, valid until its `destroy` has returned.
class Command : public Base {
public:
    static const char* classType();  ///< "adsk::core::Command"

    /// The top level of the dialog; never null. Inputs can be added at any time, and are shown at
    /// once while the dialog is open.
    [[nodiscard]] virtual Ptr<CommandInputs> commandInputs() const = 0;

    /// The definition that it was created from; never null.
    [[nodiscard]] virtual Ptr<CommandDefinition> parentCommandDefinition() const = 0;

    /// Fired when the user accepts the dialog, or at once for a command without inputs.
    [[nodiscard]] virtual Ptr<CommandEvent> execute() const = 0;

    /// Fired when the dialog opens and after each change, while the inputs are valid; undone before
    /// the next preview, before `execute`, and when the dialog ends.
    [[nodiscard]] virtual Ptr<CommandEvent> executePreview() const = 0;

    /// Fired once the dialog shows; never for a command without one.
    [[nodiscard]] virtual Ptr<CommandEvent> activate() const = 0;

    /// Fired at the end, just before `destroy`.
    [[nodiscard]] virtual Ptr<CommandEvent> deactivate() const = 0;

    /// Fired last, however the command ends; the inputs can still be read.
    [[nodiscard]] virtual Ptr<CommandEvent> destroy() const = 0;

    /// Fired for each change by the user while the dialog is open.
    [[nodiscard]] virtual Ptr<InputChangedEvent> inputChanged() const = 0;

    /// Fired when the dialog opens and after each change except a change of tab.
    [[nodiscard]] virtual Ptr<ValidateInputsEvent> validateInputs() const = 0;

    /// The caption of the button that accepts the dialog, "OK" at first.
    [[nodiscard]] virtual std::string okButtonText() const = 0;
    /// Set while the command is created, it gives a command without inputs an empty dialog.
    virtual bool okButtonText(const std::string& value) = 0;

    /// The caption of the button that cancels the dialog, "Cancel" at first.
    [[nodiscard]] virtual std::string cancelButtonText() const = 0;
    /// Set while the command is created, it gives a command without inputs an empty dialog.
    virtual bool cancelButtonText(const std::string& value) = 0;

    /// True at first.
    [[nodiscard]] virtual bool isOKButtonVisible() const = 0;
    /// With false the user can only cancel the dialog, and a "Cancel" button is called "Close".
    virtual bool isOKButtonVisible(bool value) = 0;

    /// Whether a command without inputs executes by itself once created, true at first. Ignored for
    /// a command that has a dialog.
    [[nodiscard]] virtual bool isAutoExecute() const = 0;
    /// Takes effect only while the command is created.
    virtual bool isAutoExecute(bool value) = 0;

    /// Whether it executes when another command starts while its dialog is open and its inputs are
    /// valid, true at first. It ends as pre-empted either way.
    [[nodiscard]] virtual bool isExecutedWhenPreEmpted() const = 0;
    /// Can be changed at any time before the other command starts.
    virtual bool isExecutedWhenPreEmpted(bool value) = 0;

    /// Whether the user can repeat it from the menu, true at first.
    [[nodiscard]] virtual bool isRepeatable() const = 0;
    /// Kept for the host's menus; it does not affect the running command.
    virtual bool isRepeatable(bool value) = 0;

    /// The size that the dialog opens with, in pixels. False once the dialog shows. It gives a
    /// command without inputs an empty dialog.
    virtual bool setDialogInitialSize(int width, int height) = 0;

    /// The smallest size that the user can give the dialog, in pixels. Set while the command is
    /// created, it gives a command without inputs an empty dialog.
    virtual bool setDialogMinimumSize(int width, int height) = 0;

    /// Executes the command as if the user had accepted the dialog, once the running notification
    /// has returned, and ends it if `terminate` is true. A command without inputs, called while it
    /// is created, is executed so whatever its `isAutoExecute`. False for a command that does not
    /// run, and while the inputs of its dialog are not valid.
    virtual bool doExecute(bool terminate) = 0;
};

}  // namespace adsk::core
