#pragma once

#include "host/ui/inputs/command_input_object.h"

#include <string>

namespace host::ui {

/// What a line of text holds.
struct StringValueState {
    bool readOnly = false;
    std::string value;
};

class StringValueCommandInputObject final
    : public CommandInputObject<core::StringValueCommandInput> {
public:
    StringValueCommandInputObject(const InputOrigin& origin, const std::string& value)
        : CommandInputObject(origin, InputKind::String), state_{.value = value} {}

    [[nodiscard]] std::string value() const override { return get<"value">(state_.value); }
    bool value(const std::string& value) override { return change<"value">(state_.value, value); }
    [[nodiscard]] bool isReadOnly() const override { return get<"isReadOnly">(state_.readOnly); }
    bool isReadOnly(bool value) override { return set<"isReadOnly">(state_.readOnly, value); }

    [[nodiscard]] const StringValueState& state() const { return state_; }

    /// Replaces the text, as the user does.
    void enter(const std::string& value) { state_.value = value; }

private:
    StringValueState state_;
};

}  // namespace host::ui
