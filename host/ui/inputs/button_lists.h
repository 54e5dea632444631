#pragma once

#include "host/ui/inputs/item_list.h"

/// The lists whose items are all in view.
namespace host::ui {

class ButtonRowCommandInputObject final
    : public CommandInputObject<core::ButtonRowCommandInput, ListState> {
public:
    ButtonRowCommandInputObject(const InputOrigin& origin, bool multiSelect)
        : CommandInputObject(origin, InputKind::ButtonRow, multiSelect) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
    [[nodiscard]] bool isMultiSelectEnabled() const override;
};

class RadioButtonGroupCommandInputObject final
    : public CommandInputObject<core::RadioButtonGroupCommandInput, ListState> {
public:
    explicit RadioButtonGroupCommandInputObject(const InputOrigin& origin)
        : CommandInputObject(origin, InputKind::RadioGroup, /*severalSelected=*/false) {}

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override;
    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override;
};

}  // namespace host::ui
