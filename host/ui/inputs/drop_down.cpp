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

int DropDownCommandInputObject::maxVisibleItems() const {
    if (closed<"DropDownCommandInput::maxVisibleItems">(*this)) return {};
    return maxVisibleItems_;
}

bool DropDownCommandInputObject::maxVisibleItems(int value) {
    if (closed<"DropDownCommandInput::maxVisibleItems">(*this)) return {};
    maxVisibleItems_ = value;
    return true;
}

core::DropDownStyles DropDownCommandInputObject::dropDownStyle() const {
    if (closed<"DropDownCommandInput::dropDownStyle">(*this)) return {};
    return style_;
}

}  // namespace host::ui
