#include "host/ui/inputs/button_lists.h"

namespace host::ui {

core::Ptr<core::ListItems> ButtonRowCommandInputObject::listItems() const {
    if (closed<"ButtonRowCommandInput::listItems">(*this)) return {};
    return itemsApi();
}

core::Ptr<core::ListItem> ButtonRowCommandInputObject::selectedItem() const {
    if (closed<"ButtonRowCommandInput::selectedItem">(*this)) return {};
    return selectedItemApi();
}

bool ButtonRowCommandInputObject::isMultiSelectEnabled() const {
    if (closed<"ButtonRowCommandInput::isMultiSelectEnabled">(*this)) return {};
    return several();
}

core::Ptr<core::ListItems> RadioButtonGroupCommandInputObject::listItems() const {
    if (closed<"RadioButtonGroupCommandInput::listItems">(*this)) return {};
    return itemsApi();
}

core::Ptr<core::ListItem> RadioButtonGroupCommandInputObject::selectedItem() const {
    if (closed<"RadioButtonGroupCommandInput::selectedItem">(*this)) return {};
    return selectedItemApi();
}

}  // namespace host::ui
