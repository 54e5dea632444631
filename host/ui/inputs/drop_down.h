#pragma once

#include "host/ui/inputs/item_list.h"

namespace host::ui {

class DropDownInput final : public Input<core::DropDownCommandInput, ListState> {
public:
    DropDownInput(const InputOrigin& origin, core::DropDownStyles style)
        : Input(origin, InputKind::DropDown, style == core::CheckBoxDropDownStyle), style_(style) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
    [[nodiscard]] int maxVisibleItems() const override;
    bool maxVisibleItems(int value) override;
    [[nodiscard]] core::DropDownStyles dropDownStyle() const override;

private:
    core::DropDownStyles style_;
    int maxVisibleItems_ = 10;
};

}  // namespace host::ui
