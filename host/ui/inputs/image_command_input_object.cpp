#include "host/ui/inputs/image_command_input_object.h"

namespace host::ui {

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
