#include "host/ui/inputs/bool_value_command_input_object.h"

namespace host::ui {

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

}  // namespace host::ui
