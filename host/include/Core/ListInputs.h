#pragma once

#include <Core/Collection.h>
#include <Core/CommandInput.h>
#include <Core/Enums.h>

#include <string>

/// Inputs that offer a list of items to choose from.
namespace adsk::core {

/// One entry of a list.
class ListItem : public Base {
public:
    static const char* classType();  ///< "adsk::core::ListItem"

    /// The caption of the item; for a button row, of the button.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Several items may have the same name.
    virtual bool name(const std::string& value) = 0;

    /// Whether it is selected; in most lists at most one item is.
    [[nodiscard]] virtual bool isSelected() const = 0;
    /// Selecting an item unselects the previous one, unless the list allows several; unselecting
    /// may leave none. Within a notification, selecting an item of a drop-down that the dialog
    /// already had fires `inputChanged` once that notification has returned.
    virtual bool isSelected(bool value) = 0;

    /// Its place in the list, counted from 0; it changes as items before it are added or deleted.
    [[nodiscard]] virtual int index() const = 0;

    /// The folder of the item's icons, as it was set; may be empty.
    [[nodiscard]] virtual std::string icon() const = 0;
    /// The folder is not checked; a missing icon is no failure.
    virtual bool icon(const std::string& value) = 0;

    /// Whether it only separates other items; this host has no separators.
    [[nodiscard]] virtual bool isSeparator() const = 0;

    /// Removes it from its list; this object is not valid afterwards. False for the selected item
    /// of a drop-down that allows one.
    virtual bool deleteMe() = 0;
};

/// The entries of a list, in the order in which they are shown.
class ListItems : public CollectionOf<ListItem> {
public:
    static const char* classType();  ///< "adsk::core::ListItems"

    /// Adds an item before the one at `beforeIndex`, or at the end for -1 and any index outside the
    /// list. With `isSelected` it is selected, which fires nothing.
    virtual Ptr<ListItem> add(const std::string& name, bool isSelected,
                              const std::string& icon = "", int beforeIndex = -1) = 0;

    /// Removes all items, also the selected one; their objects are not valid afterwards.
    virtual bool clear() = 0;
};

/// A list that drops down on a click.
class DropDownCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::DropDownCommandInput"

    /// The items; never null.
    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// The selected item, the first of several; null while none is selected.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;

    /// How many items show before the list scrolls.
    [[nodiscard]] virtual int maxVisibleItems() const = 0;
    /// Takes effect when the list opens next.
    virtual bool maxVisibleItems(int value) = 0;

    /// What it shows of each item, and whether several can be selected; fixed.
    [[nodiscard]] virtual DropDownStyles dropDownStyle() const = 0;
};

/// Buttons in a row, each an item with an icon. It cannot be a cell of a table.
class ButtonRowCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::ButtonRowCommandInput"

    /// The buttons; never null.
    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// The selected item, the first of several; null while none is selected.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;

    /// Whether the buttons are selected independently of each other; fixed.
    [[nodiscard]] virtual bool isMultiSelectEnabled() const = 0;
};

/// Items of which one can be selected, all of them in view.
class RadioButtonGroupCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::RadioButtonGroupCommandInput"

    /// The radio buttons; never null.
    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// The selected item; null while none is selected.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;
};

}  // namespace adsk::core
