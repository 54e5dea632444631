#pragma once

#include "host/base/events.h"
#include "host/base/misuse.h"

#include <Core/CommandDefinitions.h>
#include <Core/CommandInputs.h>
#include <Core/Commands.h>

#include <string>
#include <utility>

/// The events of commands and what their notifications carry.
namespace host::ui {

class CommandCreatedEventArgsObject final : public Arguments<core::CommandCreatedEventArgs> {
public:
    CommandCreatedEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::Command> command)
        : Arguments(std::move(event)), command_(std::move(command)) {}

    [[nodiscard]] core::Ptr<core::Command> command() const override {
        return get<"CommandCreatedEventArgs::command">(command_);
    }

private:
    core::Ptr<core::Command> command_;
};

class CommandEventArgsObject final : public Arguments<core::CommandEventArgs> {
public:
    CommandEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::Command> command,
                           core::CommandTerminationReason reason = core::UnknownTerminationReason)
        : Arguments(std::move(event)), command_(std::move(command)), reason_(reason) {}

    [[nodiscard]] core::Ptr<core::Command> command() const override {
        return get<"CommandEventArgs::command">(command_);
    }
    [[nodiscard]] bool executeFailed() const override {
        return get<"CommandEventArgs::executeFailed">(failed_);
    }
    bool executeFailed(bool value) override {
        return set<"CommandEventArgs::executeFailed">(failed_, value);
    }
    [[nodiscard]] std::string executeFailedMessage() const override {
        return get<"CommandEventArgs::executeFailedMessage">(message_);
    }
    bool executeFailedMessage(const std::string& value) override {
        return set<"CommandEventArgs::executeFailedMessage">(message_, value);
    }
    [[nodiscard]] bool isValidResult() const override {
        return get<"CommandEventArgs::isValidResult">(validResult_);
    }
    bool isValidResult(bool value) override {
        return set<"CommandEventArgs::isValidResult">(validResult_, value);
    }
    [[nodiscard]] core::CommandTerminationReason terminationReason() const override {
        return get<"CommandEventArgs::terminationReason">(reason_);
    }

    [[nodiscard]] bool failed() const { return failed_; }
    [[nodiscard]] bool standsForExecution() const { return validResult_; }

private:
    core::Ptr<core::Command> command_;
    core::CommandTerminationReason reason_;
    bool failed_ = false;
    bool validResult_ = false;
    std::string message_;
};

class InputChangedEventArgsObject final : public Arguments<core::InputChangedEventArgs> {
public:
    InputChangedEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::CommandInput> input,
                                core::Ptr<core::CommandInputs> inputs)
        : Arguments(std::move(event)), input_(std::move(input)), inputs_(std::move(inputs)) {}

    [[nodiscard]] core::Ptr<core::CommandInput> input() const override {
        return get<"InputChangedEventArgs::input">(input_);
    }
    [[nodiscard]] core::Ptr<core::CommandInputs> inputs() const override {
        return get<"InputChangedEventArgs::inputs">(inputs_);
    }

private:
    core::Ptr<core::CommandInput> input_;
    core::Ptr<core::CommandInputs> inputs_;
};

class ValidateInputsEventArgsObject final : public Arguments<core::ValidateInputsEventArgs> {
public:
    ValidateInputsEventArgsObject(core::Ptr<core::Event> event,
                                  core::Ptr<core::CommandInputs> inputs)
        : Arguments(std::move(event)), inputs_(std::move(inputs)) {}

    [[nodiscard]] bool areInputsValid() const override {
        return get<"ValidateInputsEventArgs::areInputsValid">(valid_);
    }
    bool areInputsValid(bool value) override {
        return set<"ValidateInputsEventArgs::areInputsValid">(valid_, value);
    }
    [[nodiscard]] core::Ptr<core::CommandInputs> inputs() const override {
        return get<"ValidateInputsEventArgs::inputs">(inputs_);
    }

    [[nodiscard]] bool valid() const { return valid_; }

private:
    core::Ptr<core::CommandInputs> inputs_;
    bool valid_ = true;
};

class ApplicationCommandEventArgsObject final
    : public Arguments<core::ApplicationCommandEventArgs> {
public:
    /// `cancellable` for the event before a command starts.
    ApplicationCommandEventArgsObject(
        core::Ptr<core::Event> event, std::string commandId,
        core::Ptr<core::CommandDefinition> definition, bool cancellable,
        core::CommandTerminationReason reason = core::UnknownTerminationReason)
        : Arguments(std::move(event)),
          commandId_(std::move(commandId)),
          definition_(std::move(definition)),
          reason_(reason),
          cancellable_(cancellable) {}

    [[nodiscard]] std::string commandId() const override {
        return get<"ApplicationCommandEventArgs::commandId">(commandId_);
    }
    [[nodiscard]] core::Ptr<core::CommandDefinition> commandDefinition() const override {
        return get<"ApplicationCommandEventArgs::commandDefinition">(definition_);
    }
    [[nodiscard]] core::CommandTerminationReason terminationReason() const override {
        return get<"ApplicationCommandEventArgs::terminationReason">(reason_);
    }
    [[nodiscard]] bool isCanceled() const override {
        return get<"ApplicationCommandEventArgs::isCanceled">(cancelled_);
    }
    bool isCanceled(bool value) override;

    [[nodiscard]] bool cancelled() const { return cancelled_; }

private:
    std::string commandId_;
    core::Ptr<core::CommandDefinition> definition_;
    core::CommandTerminationReason reason_;
    bool cancellable_;
    bool cancelled_ = false;
};

using CommandCreatedEventObject = TypedEvent<core::CommandCreatedEvent>;
using CommandEventObject = TypedEvent<core::CommandEvent>;
using InputChangedEventObject = TypedEvent<core::InputChangedEvent>;
using ValidateInputsEventObject = TypedEvent<core::ValidateInputsEvent>;
using ApplicationCommandEventObject = TypedEvent<core::ApplicationCommandEvent>;

}  // namespace host::ui
