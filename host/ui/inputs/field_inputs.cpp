#include "host/ui/inputs/field_inputs.h"

#include "host/ui/inputs/markup.h"

namespace host::ui {

std::string StringInput::value() const {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    return value_;
}

bool StringInput::value(const std::string& value) {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    if (value_ != value) {
        value_ = value;
        changedByCode();
    }
    return true;
}

bool StringInput::isReadOnly() const {
    if (closed<"StringValueCommandInput::isReadOnly">(*this)) return {};
    return readOnly_;
}

bool StringInput::isReadOnly(bool value) {
    if (closed<"StringValueCommandInput::isReadOnly">(*this)) return {};
    readOnly_ = value;
    return true;
}

bool BoolInput::value() const {
    if (closed<"BoolValueCommandInput::value">(*this)) return {};
    return value_;
}

bool BoolInput::value(bool value) {
    if (closed<"BoolValueCommandInput::value">(*this)) return {};
    if (value_ != value) {
        value_ = value;
        changedByCode();
    }
    return true;
}

std::string BoolInput::resourceFolder() const {
    if (closed<"BoolValueCommandInput::resourceFolder">(*this)) return {};
    return *resourceFolder_;
}

bool BoolInput::resourceFolder(const std::string& value) {
    if (closed<"BoolValueCommandInput::resourceFolder">(*this)) return {};
    resourceFolder_ = shared(value);
    return true;
}

bool BoolInput::isCheckBox() const {
    if (closed<"BoolValueCommandInput::isCheckBox">(*this)) return {};
    return checkBox_;
}

std::string BoolInput::text() const {
    if (closed<"BoolValueCommandInput::text">(*this)) return {};
    return *text_;
}

bool BoolInput::text(const std::string& value) {
    if (closed<"BoolValueCommandInput::text">(*this)) return {};
    text_ = shared(value);
    return true;
}

TextBoxInput::TextBoxInput(const InputOrigin& origin, const std::string& formattedText, int rows,
                           bool readOnly)
    : Input(origin, InputKind::TextBox),
      text_(plainText(formattedText)),
      formatted_(formattedText),
      rows_(rows),
      readOnly_(readOnly) {}

std::string TextBoxInput::text() const {
    if (closed<"TextBoxCommandInput::text">(*this)) return {};
    return text_;
}

bool TextBoxInput::text(const std::string& value) {
    if (closed<"TextBoxCommandInput::text">(*this)) return {};
    const bool changed = text_ != value;
    enter(value);
    if (changed) {
        changedByCode();
    }
    return true;
}

std::string TextBoxInput::formattedText() const {
    if (closed<"TextBoxCommandInput::formattedText">(*this)) return {};
    return formatted_;
}

bool TextBoxInput::formattedText(const std::string& value) {
    if (closed<"TextBoxCommandInput::formattedText">(*this)) return {};
    const bool changed = formatted_ != value;
    text_ = plainText(value);
    formatted_ = value;
    if (changed) {
        changedByCode();
    }
    return true;
}

int TextBoxInput::numRows() const {
    if (closed<"TextBoxCommandInput::numRows">(*this)) return {};
    return rows_;
}

bool TextBoxInput::numRows(int value) {
    if (closed<"TextBoxCommandInput::numRows">(*this)) return {};
    rows_ = value;
    return true;
}

bool TextBoxInput::isReadOnly() const {
    if (closed<"TextBoxCommandInput::isReadOnly">(*this)) return {};
    return readOnly_;
}

bool TextBoxInput::isReadOnly(bool value) {
    if (closed<"TextBoxCommandInput::isReadOnly">(*this)) return {};
    readOnly_ = value;
    return true;
}

void TextBoxInput::enter(const std::string& value) {
    text_ = value;
    formatted_ = literalMarkup(value);
}

std::string ImageInput::imageFile() const {
    if (closed<"ImageCommandInput::imageFile">(*this)) return {};
    return *imageFile_;
}

bool ImageInput::imageFile(const std::string& value) {
    if (closed<"ImageCommandInput::imageFile">(*this)) return {};
    imageFile_ = shared(value);
    return true;
}

}  // namespace host::ui
