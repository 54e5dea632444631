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
        return get<"command">(command_);
    }

private:
    core::Ptr<core::Command> command_;
};

/// What handlers of a command's event answered.
struct CommandEventState {
    bool failed = false;
    std::string failedMessage;
    bool validResult = false;  ///< a preview that can take the place of the execution
};

class CommandEventArgsObject final : public Arguments<core::CommandEventArgs> {
public:
    CommandEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::Command> command,
                           core::CommandTerminationReason reason = core::UnknownTerminationReason)
        : Arguments(std::move(event)), command_(std::move(command)), reason_(reason) {}

    [[nodiscard]] core::Ptr<core::Command> command() const override {
        return get<"command">(command_);
    }
    [[nodiscard]] bool executeFailed() const override {
        return get<"executeFailed">(state_.failed);
    }
    bool executeFailed(bool value) override { return set<"executeFailed">(state_.failed, value); }
    [[nodiscard]] std::string executeFailedMessage() const override {
        return get<"executeFailedMessage">(state_.failedMessage);
    }
    bool executeFailedMessage(const std::string& value) override {
        return set<"executeFailedMessage">(state_.failedMessage, value);
    }
    [[nodiscard]] bool isValidResult() const override {
        return get<"isValidResult">(state_.validResult);
    }
    bool isValidResult(bool value) override {
        return set<"isValidResult">(state_.validResult, value);
    }
    [[nodiscard]] core::CommandTerminationReason terminationReason() const override {
        return get<"terminationReason">(reason_);
    }

    [[nodiscard]] const CommandEventState& state() const { return state_; }

private:
    core::Ptr<core::Command> command_;
    core::CommandTerminationReason reason_;
    CommandEventState state_;
};

class InputChangedEventArgsObject final : public Arguments<core::InputChangedEventArgs> {
public:
    InputChangedEventArgsObject(core::Ptr<core::Event> event, core::Ptr<core::CommandInput> input,
                                core::Ptr<core::CommandInputs> inputs)
        : Arguments(std::move(event)), input_(std::move(input)), inputs_(std::move(inputs)) {}

    [[nodiscard]] core::Ptr<core::CommandInput> input() const override {
        return get<"input">(input_);
    }
    [[nodiscard]] core::Ptr<core::CommandInputs> inputs() const override {
        return get<"inputs">(inputs_);
    }

private:
    core::Ptr<core::CommandInput> input_;
    core::Ptr<core::CommandInputs> inputs_;
};

struct ValidateInputsState {
    bool valid = true;
};

class ValidateInputsEventArgsObject final : public Arguments<core::ValidateInputsEventArgs> {
public:
    ValidateInputsEventArgsObject(core::Ptr<core::Event> event,
                                  core::Ptr<core::CommandInputs> inputs)
        : Arguments(std::move(event)), inputs_(std::move(inputs)) {}

    [[nodiscard]] bool areInputsValid() const override {
        return get<"areInputsValid">(state_.valid);
    }
    bool areInputsValid(bool value) override { return set<"areInputsValid">(state_.valid, value); }
    [[nodiscard]] core::Ptr<core::CommandInputs> inputs() const override {
        return get<"inputs">(inputs_);
    }

    [[nodiscard]] const ValidateInputsState& state() const { return state_; }

private:
    core::Ptr<core::CommandInputs> inputs_;
    ValidateInputsState state_;
};

/// What an event about a command says.
struct ApplicationCommandState {
    std::string commandId;
    core::Ptr<core::CommandDefinition> definition;
    bool cancellable = false;  ///< only the event before a command starts
    core::CommandTerminationReason reason = core::UnknownTerminationReason;
    bool cancelled = false;
};

class ApplicationCommandEventArgsObject final
    : public Arguments<core::ApplicationCommandEventArgs> {
public:
    ApplicationCommandEventArgsObject(core::Ptr<core::Event> event, ApplicationCommandState state)
        : Arguments(std::move(event)), state_(std::move(state)) {}

    [[nodiscard]] std::string commandId() const override {
        return get<"commandId">(state_.commandId);
    }
    [[nodiscard]] core::Ptr<core::CommandDefinition> commandDefinition() const override {
        return get<"commandDefinition">(state_.definition);
    }
    [[nodiscard]] core::CommandTerminationReason terminationReason() const override {
        return get<"terminationReason">(state_.reason);
    }
    [[nodiscard]] bool isCanceled() const override { return get<"isCanceled">(state_.cancelled); }
    bool isCanceled(bool value) override;

    [[nodiscard]] const ApplicationCommandState& state() const { return state_; }

private:
    ApplicationCommandState state_;
};

using CommandCreatedEventObject = TypedEvent<core::CommandCreatedEvent>;
using CommandEventObject = TypedEvent<core::CommandEvent>;
using InputChangedEventObject = TypedEvent<core::InputChangedEvent>;
using ValidateInputsEventObject = TypedEvent<core::ValidateInputsEvent>;
using ApplicationCommandEventObject = TypedEvent<core::ApplicationCommandEvent>;

}  // namespace host::ui
