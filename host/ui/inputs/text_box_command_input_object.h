#pragma once

#include "host/ui/inputs/command_input_object.h"

#include <string>

namespace host::ui {

/// What a text box holds.
struct TextBoxState {
    std::string text;
    std::string formatted;  ///< the same as simple HTML
    int rows = 1;
    bool readOnly = false;
};

class TextBoxCommandInputObject final : public CommandInputObject<core::TextBoxCommandInput> {
public:
    TextBoxCommandInputObject(const InputOrigin& origin, const std::string& formattedText, int rows,
                              bool readOnly);

    [[nodiscard]] std::string text() const override { return get<"text">(state_.text); }
    bool text(const std::string& value) override;
    [[nodiscard]] std::string formattedText() const override {
        return get<"formattedText">(state_.formatted);
    }
    bool formattedText(const std::string& value) override;
    [[nodiscard]] int numRows() const override { return get<"numRows">(state_.rows); }
    bool numRows(int value) override { return set<"numRows">(state_.rows, value); }
    [[nodiscard]] bool isReadOnly() const override { return get<"isReadOnly">(state_.readOnly); }
    bool isReadOnly(bool value) override { return set<"isReadOnly">(state_.readOnly, value); }

    [[nodiscard]] const TextBoxState& state() const { return state_; }

    /// Replaces the text, as the user does.
    void enter(const std::string& value);

private:
    TextBoxState state_;
};

}  // namespace host::ui
