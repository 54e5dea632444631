#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/compact_text.h"

#include <string>

namespace host::ui {

class StringValueCommandInputObject final
    : public CommandInputObject<core::StringValueCommandInput> {
public:
    StringValueCommandInputObject(const InputOrigin& origin, const std::string& value)
        : CommandInputObject(origin, InputKind::String), value_(value) {}

    [[nodiscard]] std::string value() const override {
        if (closed<"value">(*this)) return {};
        return value_.text();
    }
    bool value(const std::string& value) override { return change<"value">(value_, value); }
    [[nodiscard]] bool isReadOnly() const override { return get<"isReadOnly">(readOnly_); }
    bool isReadOnly(bool value) override { return set<"isReadOnly">(readOnly_, value); }

    /// @name For the host itself
    /// @{
    [[nodiscard]] bool refusesUser() const { return readOnly_; }

    /// Replaces the text, as the user does.
    void enter(const std::string& value) { value_ = value; }
    /// @}

private:
    bool readOnly_ = false;
    CompactText value_;
};

}  // namespace host::ui
