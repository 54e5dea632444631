#include "host/ui/inputs/string_value_command_input_object.h"

namespace host::ui {

bool StringValueCommandInputObject::value(const std::string& value) {
    if (closed<"StringValueCommandInput::value">(*this)) return {};
    if (state_.value != value) {
        state_.value = value;
        changedByCode();
    }
    return true;
}

}  // namespace host::ui
