#pragma once

#include "host/ui/inputs/list_input_object.h"

namespace host::ui {

class DropDownCommandInputObject final : public ListInputObject<core::DropDownCommandInput> {
public:
    DropDownCommandInputObject(const InputOrigin& origin, core::DropDownStyles style)
        : ListInputObject(origin, InputKind::DropDown, style == core::CheckBoxDropDownStyle),
          style_(style) {}

    [[nodiscard]] int maxVisibleItems() const override {
        return get<"maxVisibleItems">(maxVisibleItems_);
    }
    bool maxVisibleItems(int value) override {
        return set<"maxVisibleItems">(maxVisibleItems_, value);
    }
    [[nodiscard]] core::DropDownStyles dropDownStyle() const override {
        return get<"dropDownStyle">(style_);
    }

private:
    core::DropDownStyles style_;
    int maxVisibleItems_ = 10;
};

}  // namespace host::ui
