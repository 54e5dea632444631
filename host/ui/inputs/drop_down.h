#pragma once

#include "host/ui/inputs/item_list.h"

namespace host::ui {

class DropDownCommandInputObject final
    : public CommandInputObject<core::DropDownCommandInput, ListState> {
public:
    DropDownCommandInputObject(const InputOrigin& origin, core::DropDownStyles style)
        : CommandInputObject(origin, InputKind::DropDown, style == core::CheckBoxDropDownStyle),
          style_(style) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
    [[nodiscard]] int maxVisibleItems() const override {
        return get<"DropDownCommandInput::maxVisibleItems">(maxVisibleItems_);
    }
    bool maxVisibleItems(int value) override {
        return set<"DropDownCommandInput::maxVisibleItems">(maxVisibleItems_, value);
    }
    [[nodiscard]] core::DropDownStyles dropDownStyle() const override {
        return get<"DropDownCommandInput::dropDownStyle">(style_);
    }

private:
    core::DropDownStyles style_;
    int maxVisibleItems_ = 10;
};

}  // namespace host::ui
