#include "host/ui/commands/command_events.h"

namespace host::ui {

core::Ptr<core::Command> CommandCreatedEventArgsObject::command() const {
    if (refused<"CommandCreatedEventArgs::command">()) return {};
    return command_;
}

core::Ptr<core::Command> CommandEventArgsObject::command() const {
    if (refused<"CommandEventArgs::command">()) return {};
    return command_;
}

bool CommandEventArgsObject::executeFailed() const {
    if (refused<"CommandEventArgs::executeFailed">()) return {};
    return failed_;
}

bool CommandEventArgsObject::executeFailed(bool value) {
    if (refused<"CommandEventArgs::executeFailed">()) return {};
    failed_ = value;
    return true;
}

std::string CommandEventArgsObject::executeFailedMessage() const {
    if (refused<"CommandEventArgs::executeFailedMessage">()) return {};
    return message_;
}

bool CommandEventArgsObject::executeFailedMessage(const std::string& value) {
    if (refused<"CommandEventArgs::executeFailedMessage">()) return {};
    message_ = value;
    return true;
}

bool CommandEventArgsObject::isValidResult() const {
    if (refused<"CommandEventArgs::isValidResult">()) return {};
    return validResult_;
}

bool CommandEventArgsObject::isValidResult(bool value) {
    if (refused<"CommandEventArgs::isValidResult">()) return {};
    validResult_ = value;
    return true;
}

core::CommandTerminationReason CommandEventArgsObject::terminationReason() const {
    if (refused<"CommandEventArgs::terminationReason">()) return {};
    return reason_;
}

core::Ptr<core::CommandInput> InputChangedEventArgsObject::input() const {
    if (refused<"InputChangedEventArgs::input">()) return {};
    return input_;
}

core::Ptr<core::CommandInputs> InputChangedEventArgsObject::inputs() const {
    if (refused<"InputChangedEventArgs::inputs">()) return {};
    return inputs_;
}

bool ValidateInputsEventArgsObject::areInputsValid() const {
    if (refused<"ValidateInputsEventArgs::areInputsValid">()) return {};
    return valid_;
}

bool ValidateInputsEventArgsObject::areInputsValid(bool value) {
    if (refused<"ValidateInputsEventArgs::areInputsValid">()) return {};
    valid_ = value;
    return true;
}

core::Ptr<core::CommandInputs> ValidateInputsEventArgsObject::inputs() const {
    if (refused<"ValidateInputsEventArgs::inputs">()) return {};
    return inputs_;
}

std::string ApplicationCommandEventArgsObject::commandId() const {
    if (refused<"ApplicationCommandEventArgs::commandId">()) return {};
    return commandId_;
}

core::Ptr<core::CommandDefinition> ApplicationCommandEventArgsObject::commandDefinition() const {
    if (refused<"ApplicationCommandEventArgs::commandDefinition">()) return {};
    return definition_;
}

core::CommandTerminationReason ApplicationCommandEventArgsObject::terminationReason() const {
    if (refused<"ApplicationCommandEventArgs::terminationReason">()) return {};
    return reason_;
}

bool ApplicationCommandEventArgsObject::isCanceled() const {
    if (refused<"ApplicationCommandEventArgs::isCanceled">()) return {};
    return cancelled_;
}

bool ApplicationCommandEventArgsObject::isCanceled(bool value) {
    constexpr const char* kOperation = "ApplicationCommandEventArgs::isCanceled";
    if (refused<"ApplicationCommandEventArgs::isCanceled">()) return {};
    if (!cancellable_) {
        return misuse(kOperation, "only a command that is about to start can be kept from it");
    }
    cancelled_ = value;
    return true;
}

}  // namespace host::ui
