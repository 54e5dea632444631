#pragma once

#include "host/ui/inputs/input.h"

#include <Core/ListInputs.h>

#include <cstddef>
#include <string>
#include <vector>

/// The items of drop-downs, button rows and radio groups.
///
/// A dialog can hold hundreds of thousands of lists, so an item is a plain entry of its list; its
/// object of the API is made when somebody asks and kept for as long as somebody holds it.
namespace host::ui {

class ListItemObject;
class ListItemsObject;

/// An input that offers items.
class ListState : public InputState {
public:
    ListState(const InputOrigin& origin, InputKind inputKind, bool severalSelected)
        : InputState(origin, inputKind), several_(severalSelected) {}
    ~ListState() override;

    void retire() override;

    struct Entry {
        const std::string* name = nullptr;       ///< of the command's pool
        const std::string* icon = nullptr;       ///< of the command's pool
        mutable ListItemObject* item = nullptr;  ///< the object of the API while somebody holds it
        bool selected = false;
    };

    [[nodiscard]] const std::vector<Entry>& entries() const { return entries_; }

    /// Whether several items can be selected at a time.
    [[nodiscard]] bool several() const { return several_; }

    /// The first selected item, -1 for none.
    [[nodiscard]] int selectedIndex() const;

    /// Selects or unselects an item; true when that changed it.
    bool select(std::size_t index, bool selected);

    /// The place of the item of this name, -1 where there is none.
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

    void renumber(std::size_t from);

    std::vector<Entry> entries_;
    mutable ListItemsObject* items_ = nullptr;  ///< the object of the API while somebody holds it
    int selected_ = -1;                         ///< where only one item can be selected: its place
    bool several_;
};

/// The list of an input as the API sees it.
class ListItemsObject final : public Object<core::ListItems> {
public:
    explicit ListItemsObject(ListState* list) : list_(list), input_(list->api()) {}
    ~ListItemsObject() override;

    [[nodiscard]] std::size_t count() const override;
    [[nodiscard]] core::Ptr<core::ListItem> item(std::size_t index) const override;
    core::Ptr<core::ListItem> add(const std::string& name, bool isSelected, const std::string& icon,
                                  int beforeIndex) override;
    bool clear() override;

private:
    ListState* list_;
    core::Ptr<core::CommandInput> input_;  ///< keeps the list in memory
};

/// An item of a list as the API sees it.
class ListItemObject final : public Object<core::ListItem> {
public:
    ListItemObject(ListState* list, std::size_t index)
        : list_(list), index_(index), input_(list->api()) {}
    ~ListItemObject() override;

    [[nodiscard]] std::string name() const override;
    bool name(const std::string& value) override;
    [[nodiscard]] bool isSelected() const override;
    bool isSelected(bool value) override;
    [[nodiscard]] int index() const override;
    [[nodiscard]] std::string icon() const override;
    bool icon(const std::string& value) override;
    [[nodiscard]] bool isSeparator() const override;
    bool deleteMe() override;

    /// The item moved within its list.
    void moved(std::size_t index) { index_ = index; }

private:
    [[nodiscard]] const ListState::Entry& entry() const { return list_->entries_[index_]; }

    ListState* list_;
    std::size_t index_;
    core::Ptr<core::CommandInput> input_;  ///< keeps the list in memory
};

}  // namespace host::ui
