#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/list_items_object.h"

namespace host::ui {

/// An input of the API that offers items, with the operations that all of them have.
template <class Interface>
class ListInputObject : public CommandInputObject<Interface, ListState> {
public:
    using CommandInputObject<Interface, ListState>::CommandInputObject;

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override {
        if (closed<"listItems">(*this)) return {};
        return this->itemsApi();
    }

    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override {
        if (closed<"selectedItem">(*this)) return {};
        return this->selectedItemApi();
    }
};

}  // namespace host::ui
