#include "host/ui/inputs/field_inputs.h"

#include "host/ui/inputs/markup.h"

namespace host::ui {

std::string StringValueCommandInputObject::value() const {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    return value_;
}

bool StringValueCommandInputObject::value(const std::string& value) {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    if (value_ != value) {
        value_ = value;
        changedByCode();
    }
    return true;
}

bool StringValueCommandInputObject::isReadOnly() const {
    if (closed<"StringValueCommandInput::isReadOnly">(*this)) return {};
    return readOnly_;
}

bool StringValueCommandInputObject::isReadOnly(bool value) {
    if (closed<"StringValueCommandInput::isReadOnly">(*this)) return {};
    readOnly_ = value;
    return true;
}

bool BoolValueCommandInputObject::value() const {
    if (closed<"BoolValueCommandInput::value">(*this)) return {};
    return value_;
}

bool BoolValueCommandInputObject::value(bool value) {
    if (closed<"BoolValueCommandInput::value">(*this)) return {};
    if (value_ != value) {
        value_ = value;
        changedByCode();
    }
    return true;
}

std::string BoolValueCommandInputObject::resourceFolder() const {
    if (closed<"BoolValueCommandInput::resourceFolder">(*this)) return {};
    return *resourceFolder_;
}

bool BoolValueCommandInputObject::resourceFolder(const std::string& value) {
    if (closed<"BoolValueCommandInput::resourceFolder">(*this)) return {};
    resourceFolder_ = shared(value);
    return true;
}

bool BoolValueCommandInputObject::isCheckBox() const {
    if (closed<"BoolValueCommandInput::isCheckBox">(*this)) return {};
    return checkBox_;
}

std::string BoolValueCommandInputObject::text() const {
    if (closed<"BoolValueCommandInput::text">(*this)) return {};
    return *text_;
}

bool BoolValueCommandInputObject::text(const std::string& value) {
    if (closed<"BoolValueCommandInput::text">(*this)) return {};
    text_ = shared(value);
    return true;
}

TextBoxCommandInputObject::TextBoxCommandInputObject(const InputOrigin& origin,
                                                     const std::string& formattedText, int rows,
                                                     bool readOnly)
    : CommandInputObject(origin, InputKind::TextBox),
      text_(plainText(formattedText)),
      formatted_(formattedText),
      rows_(rows),
      readOnly_(readOnly) {}

std::string TextBoxCommandInputObject::text() const {
    if (closed<"TextBoxCommandInput::text">(*this)) return {};
    return text_;
}

bool TextBoxCommandInputObject::text(const std::string& value) {
    if (closed<"TextBoxCommandInput::text">(*this)) return {};
    const bool changed = text_ != value;
    enter(value);
    if (changed) {
        changedByCode();
    }
    return true;
}

std::string TextBoxCommandInputObject::formattedText() const {
    if (closed<"TextBoxCommandInput::formattedText">(*this)) return {};
    return formatted_;
}

bool TextBoxCommandInputObject::formattedText(const std::string& value) {
    if (closed<"TextBoxCommandInput::formattedText">(*this)) return {};
    const bool changed = formatted_ != value;
    text_ = plainText(value);
    formatted_ = value;
    if (changed) {
        changedByCode();
    }
    return true;
}

int TextBoxCommandInputObject::numRows() const {
    if (closed<"TextBoxCommandInput::numRows">(*this)) return {};
    return rows_;
}

bool TextBoxCommandInputObject::numRows(int value) {
    if (closed<"TextBoxCommandInput::numRows">(*this)) return {};
    rows_ = value;
    return true;
}

bool TextBoxCommandInputObject::isReadOnly() const {
    if (closed<"TextBoxCommandInput::isReadOnly">(*this)) return {};
    return readOnly_;
}

bool TextBoxCommandInputObject::isReadOnly(bool value) {
    if (closed<"TextBoxCommandInput::isReadOnly">(*this)) return {};
    readOnly_ = value;
    return true;
}

void TextBoxCommandInputObject::enter(const std::string& value) {
    text_ = value;
    formatted_ = literalMarkup(value);
}

std::string ImageCommandInputObject::imageFile() const {
    if (closed<"ImageCommandInput::imageFile">(*this)) return {};
    return *imageFile_;
}

bool ImageCommandInputObject::imageFile(const std::string& value) {
    if (closed<"ImageCommandInput::imageFile">(*this)) return {};
    imageFile_ = shared(value);
    return true;
}

}  // namespace host::ui
