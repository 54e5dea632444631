#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/list_items_object.h"

namespace host::ui {

/// An input of the API that offers items, with the operations that all of them have. `ListItems`
/// and `SelectedItem` are the names under which its class passes the gate.
template <class Interface, CallName ListItems, CallName SelectedItem>
class ListInputObject : public CommandInputObject<Interface, ListState> {
public:
    using CommandInputObject<Interface, ListState>::CommandInputObject;

    [[nodiscard]] core::Ptr<core::ListItems> listItems() const override {
        if (closed<ListItems>(*this)) return {};
        return this->itemsApi();
    }

    [[nodiscard]] core::Ptr<core::ListItem> selectedItem() const override {
        if (closed<SelectedItem>(*this)) return {};
        return this->selectedItemApi();
    }
};

}  // namespace host::ui
