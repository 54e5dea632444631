#include "host/ui/inputs/text_box_command_input_object.h"

#include "host/ui/inputs/markup.h"

namespace host::ui {

TextBoxCommandInputObject::TextBoxCommandInputObject(const InputOrigin& origin,
                                                     const std::string& formattedText, int rows,
                                                     bool readOnly)
    : CommandInputObject(origin, InputKind::TextBox),
      state_{.text = plainText(formattedText),
             .formatted = formattedText,
             .rows = rows,
             .readOnly = readOnly} {}

bool TextBoxCommandInputObject::text(const std::string& value) {
    if (closed<"text">(*this)) return {};
    const bool changed = state_.text != value;
    enter(value);
    if (changed) {
        changedByCode();
    }
    return true;
}

bool TextBoxCommandInputObject::formattedText(const std::string& value) {
    if (closed<"formattedText">(*this)) return {};
    const bool changed = state_.formatted != value;
    state_.text = plainText(value);
    state_.formatted = value;
    if (changed) {
        changedByCode();
    }
    return true;
}

void TextBoxCommandInputObject::enter(const std::string& value) {
    state_.text = value;
    state_.formatted = literalMarkup(value);
}

}  // namespace host::ui
