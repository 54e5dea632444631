#pragma once

#include "host/ui/inputs/input_state.h"

#include <Core/ListInputs.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

/// The items of drop-downs, button rows and radio groups.
///
/// A dialog can hold hundreds of thousands of lists, so an item is a plain entry of its list; its
/// object of the API is made on request and kept for as long as there is a handle to it.
namespace host::ui {

class ListItemObject;
class ListItemsObject;

/// An input that offers items.
class ListState : public InputState {
public:
    ListState(const InputOrigin& origin, InputKind inputKind, bool multiSelect)
        : InputState(origin, inputKind),
          chosen_(multiSelect ? std::make_unique<std::vector<bool>>() : nullptr) {}
    ~ListState() override;

    void dispose() override;

    struct Entry {
        const std::string* name = nullptr;  ///< of the command's pool
        const std::string* icon = nullptr;  ///< of the command's pool
        mutable ListItemObject* item =
            nullptr;  ///< the object of the API while there is a handle to it
    };

    [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }

    /// Whether several items can be selected at a time.
    [[nodiscard]] bool isMultiSelect() const { return chosen_ != nullptr; }

    [[nodiscard]] bool isSelected(std::size_t index) const {
        return isMultiSelect() ? (*chosen_)[index] : selected_ == static_cast<int>(index);
    }

    /// The first selected item, -1 for none.
    [[nodiscard]] int selectedIndex() const;

    /// Selects or unselects an item; true when that changed it.
    bool select(std::size_t index, bool selected);

    /// The index of the item of this name, -1 where there is none.
    [[nodiscard]] int indexOf(const std::string& name) const;

    /// Adds an item before the one at `before`; at the end for one that does not exist.
    std::size_t add(const std::string& name, bool selected, const std::string& icon, int before);
    void remove(std::size_t index);
    void clear();
    void rename(std::size_t index, const std::string& name);
    void changeIcon(std::size_t index, const std::string& icon);

    /// The objects of the API for the list and for its items; `selectedItem` is null for none.
    core::Ptr<core::ListItems> itemsApi() const;
    core::Ptr<core::ListItem> itemApi(std::size_t index) const;
    core::Ptr<core::ListItem> selectedItemApi() const;

private:
    friend class ListItemObject;
    friend class ListItemsObject;

    void moveItems(std::size_t from);

    int selected_ = -1;                          ///< where only one item can be selected: its place
    std::unique_ptr<std::vector<bool>> chosen_;  ///< where several can be selected: which are
    std::vector<Entry> entries_;
    mutable ListItemsObject* items_ =
        nullptr;  ///< the object of the API while there is a handle to it
};

}  // namespace host::ui
