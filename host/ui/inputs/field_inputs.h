#pragma once

#include "host/ui/inputs/input.h"

#include <string>

/// The inputs that hold one value: a line of text, a button or check box, a text box, a picture.
namespace host::ui {

class StringValueCommandInputObject final
    : public CommandInputObject<core::StringValueCommandInput> {
public:
    StringValueCommandInputObject(const InputOrigin& origin, const std::string& value)
        : CommandInputObject(origin, InputKind::String), value_(value) {}

    [[nodiscard]] std::string value() const override {
        return get<"StringValueCommandInput::value">(value_);
    }
    bool value(const std::string& value) override;
    [[nodiscard]] bool isReadOnly() const override {
        return get<"StringValueCommandInput::isReadOnly">(readOnly_);
    }
    bool isReadOnly(bool value) override {
        return set<"StringValueCommandInput::isReadOnly">(readOnly_, value);
    }

    /// Writes into it as a person does.
    void enter(const std::string& value) { value_ = value; }
    [[nodiscard]] bool readOnly() const { return readOnly_; }

private:
    bool readOnly_ = false;
    std::string value_;
};

class BoolValueCommandInputObject final : public CommandInputObject<core::BoolValueCommandInput> {
public:
    BoolValueCommandInputObject(const InputOrigin& origin, bool checkBox,
                                const std::string& resourceFolder, bool value)
        : CommandInputObject(origin, InputKind::Bool),
          checkBox_(checkBox),
          value_(value),
          resourceFolder_(shared(resourceFolder)),
          text_(shared("")) {}

    [[nodiscard]] bool value() const override {
        return get<"BoolValueCommandInput::value">(value_);
    }
    bool value(bool value) override;
    [[nodiscard]] std::string resourceFolder() const override;
    bool resourceFolder(const std::string& value) override;
    [[nodiscard]] bool isCheckBox() const override {
        return get<"BoolValueCommandInput::isCheckBox">(checkBox_);
    }
    [[nodiscard]] std::string text() const override;
    bool text(const std::string& value) override;

    /// Clicks it as a person does.
    void toggle() { value_ = !value_; }

private:
    bool checkBox_;
    bool value_;
    const std::string* resourceFolder_;  ///< of the command's pool
    const std::string* text_;            ///< of the command's pool
};

class TextBoxCommandInputObject final : public CommandInputObject<core::TextBoxCommandInput> {
public:
    TextBoxCommandInputObject(const InputOrigin& origin, const std::string& formattedText, int rows,
                              bool readOnly);

    [[nodiscard]] std::string text() const override {
        return get<"TextBoxCommandInput::text">(text_);
    }
    bool text(const std::string& value) override;
    [[nodiscard]] std::string formattedText() const override {
        return get<"TextBoxCommandInput::formattedText">(formatted_);
    }
    bool formattedText(const std::string& value) override;
    [[nodiscard]] int numRows() const override {
        return get<"TextBoxCommandInput::numRows">(rows_);
    }
    bool numRows(int value) override { return set<"TextBoxCommandInput::numRows">(rows_, value); }
    [[nodiscard]] bool isReadOnly() const override {
        return get<"TextBoxCommandInput::isReadOnly">(readOnly_);
    }
    bool isReadOnly(bool value) override {
        return set<"TextBoxCommandInput::isReadOnly">(readOnly_, value);
    }

    /// Writes into it as a person does.
    void enter(const std::string& value);
    [[nodiscard]] bool readOnly() const { return readOnly_; }

private:
    std::string text_;
    std::string formatted_;
    int rows_;
    bool readOnly_;
};

class ImageCommandInputObject final : public CommandInputObject<core::ImageCommandInput> {
public:
    ImageCommandInputObject(const InputOrigin& origin, const std::string& imageFile)
        : CommandInputObject(origin, InputKind::Image), imageFile_(shared(imageFile)) {}

    [[nodiscard]] std::string imageFile() const override;
    bool imageFile(const std::string& value) override;

private:
    const std::string* imageFile_;  ///< of the command's pool
};

}  // namespace host::ui
