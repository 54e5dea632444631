#include "host/ui/inputs/tab_command_input_object.h"

#include "host/ui/commands/command_object.h"

namespace host::ui {

bool TabCommandInputObject::isActive() const {
    if (closed<"isActive">(*this)) return {};
    return command()->activeTab() == this;
}

bool TabCommandInputObject::activate() {
    if (closed<"activate">(*this)) return {};
    command()->activeTab(this);
    return true;
}

}  // namespace host::ui
