#include "host/ui/inputs/field_inputs.h"

#include "host/ui/inputs/markup.h"

namespace host::ui {

bool StringValueCommandInputObject::value(const std::string& value) {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    if (value_ != value) {
        value_ = value;
        changedByCode();
    }
    return true;
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

bool TextBoxCommandInputObject::text(const std::string& value) {
    if (closed<"TextBoxCommandInput::text">(*this)) return {};
    const bool changed = text_ != value;
    enter(value);
    if (changed) {
        changedByCode();
    }
    return true;
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
