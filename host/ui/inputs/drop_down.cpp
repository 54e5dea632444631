#include "host/ui/inputs/drop_down.h"

namespace host::ui {

core::Ptr<core::ListItems> DropDownInput::listItems() const {
    if (closed<"DropDownCommandInput::listItems">(*this)) return {};
    return itemsApi();
}

core::Ptr<core::ListItem> DropDownInput::selectedItem() const {
    if (closed<"DropDownCommandInput::selectedItem">(*this)) return {};
    return selectedItemApi();
}

int DropDownInput::maxVisibleItems() const {
    if (closed<"DropDownCommandInput::maxVisibleItems">(*this)) return {};
    return maxVisibleItems_;
}

bool DropDownInput::maxVisibleItems(int value) {
    if (closed<"DropDownCommandInput::maxVisibleItems">(*this)) return {};
    maxVisibleItems_ = value;
    return true;
}

core::DropDownStyles DropDownInput::dropDownStyle() const {
    if (closed<"DropDownCommandInput::dropDownStyle">(*this)) return {};
    return style_;
}

}  // namespace host::ui
