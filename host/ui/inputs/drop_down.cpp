#include "host/ui/inputs/drop_down.h"

namespace host::ui {

core::Ptr<core::ListItems> DropDownCommandInputObject::listItems() const {
    if (closed<"DropDownCommandInput::listItems">(*this)) return {};
    return itemsApi();
}

core::Ptr<core::ListItem> DropDownCommandInputObject::selectedItem() const {
    if (closed<"DropDownCommandInput::selectedItem">(*this)) return {};
    return selectedItemApi();
}

}  // namespace host::ui
