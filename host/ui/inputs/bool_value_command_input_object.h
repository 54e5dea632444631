#pragma once

#include "host/ui/inputs/command_input_object.h"

#include <string>

namespace host::ui {

/// A button or a check box.
class BoolValueCommandInputObject final : public CommandInputObject<core::BoolValueCommandInput> {
public:
    BoolValueCommandInputObject(const InputOrigin& origin, bool checkBox,
                                const std::string& resourceFolder, bool value)
        : CommandInputObject(origin, InputKind::Bool),
          checkBox_(checkBox),
          value_(value),
          resourceFolder_(shared(resourceFolder)),
          text_(shared("")) {}

    [[nodiscard]] bool value() const override { return get<"value">(value_); }
    bool value(bool value) override { return change<"value">(value_, value); }
    [[nodiscard]] std::string resourceFolder() const override {
        return getShared<"resourceFolder">(resourceFolder_);
    }
    bool resourceFolder(const std::string& value) override {
        return setShared<"resourceFolder">(resourceFolder_, value);
    }
    [[nodiscard]] bool isCheckBox() const override { return get<"isCheckBox">(checkBox_); }
    [[nodiscard]] std::string text() const override { return getShared<"text">(text_); }
    bool text(const std::string& value) override { return setShared<"text">(text_, value); }

    /// Clicks it, as the user does.
    void toggle() { value_ = !value_; }

private:
    bool checkBox_;
    bool value_;
    const std::string* resourceFolder_;  ///< of the command's pool
    const std::string* text_;            ///< of the command's pool
};

}  // namespace host::ui
