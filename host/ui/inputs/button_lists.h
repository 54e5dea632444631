#pragma once

#include "host/ui/inputs/item_list.h"

/// The lists whose items are all in view.
namespace host::ui {

class ButtonRowInput final : public Input<core::ButtonRowCommandInput, ListState> {
public:
    ButtonRowInput(const InputOrigin& origin, bool multiSelect)
        : Input(origin, InputKind::ButtonRow, multiSelect) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
    [[nodiscard]] bool isMultiSelectEnabled() const override;
};

class RadioGroupInput final : public Input<core::RadioButtonGroupCommandInput, ListState> {
public:
    explicit RadioGroupInput(const InputOrigin& origin)
        : Input(origin, InputKind::RadioGroup, /*severalSelected=*/false) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
};

}  // namespace host::ui
