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
    static const char* classType();

    [[nodiscard]] virtual std::string name() const = 0;
    virtual bool name(const std::string& value) = 0;

    /// Selecting an item unselects the one selected before, unless the list allows several.
    /// Selecting an item of a drop-down by code can fire `inputChanged`, after the running
    /// notification.
    [[nodiscard]] virtual bool isSelected() const = 0;
    virtual bool isSelected(bool value) = 0;

    /// Its place in the list.
    [[nodiscard]] virtual int index() const = 0;

    [[nodiscard]] virtual std::string icon() const = 0;
    virtual bool icon(const std::string& value) = 0;

    [[nodiscard]] virtual bool isSeparator() const = 0;

    /// Takes it out of its list; false for the selected item of a drop-down.
    virtual bool deleteMe() = 0;
};

/// The entries of a list, in the order in which they are shown.
class ListItems : public CollectionOf<ListItem> {
public:
    static const char* classType();

    /// Adds an item before the one at `beforeIndex`; at the end for -1.
    virtual Ptr<ListItem> add(const std::string& name, bool isSelected,
                              const std::string& icon = "", int beforeIndex = -1) = 0;

    /// Takes all items out.
    virtual bool clear() = 0;
};

/// A list that opens on a click.
class DropDownCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// Null until something is selected.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;

    /// How many items show before the list scrolls.
    [[nodiscard]] virtual int maxVisibleItems() const = 0;
    virtual bool maxVisibleItems(int value) = 0;

    [[nodiscard]] virtual DropDownStyles dropDownStyle() const = 0;
};

/// Buttons in a row, each an item with an icon.
class ButtonRowCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// Null until something is selected; the first of several.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;

    [[nodiscard]] virtual bool isMultiSelectEnabled() const = 0;
};

/// Items of which one can be chosen, all of them in view.
class RadioButtonGroupCommandInput : public CommandInput {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<ListItems> listItems() const = 0;

    /// Null until something is selected.
    [[nodiscard]] virtual Ptr<ListItem> selectedItem() const = 0;
};

}  // namespace adsk::core
