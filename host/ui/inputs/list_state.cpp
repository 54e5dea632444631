#include "host/ui/inputs/list_state.h"

#include "host/ui/inputs/list_item_object.h"
#include "host/ui/inputs/list_items_object.h"

#include <algorithm>

namespace host::ui {

ListState::~ListState() = default;

void ListState::dispose() {
    clear();
    if (items_ != nullptr) {
        items_->dispose();
    }
    InputState::dispose();
}

int ListState::selectedIndex() const {
    if (!multiSelect_) return selected_;
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [](const Entry& each) { return each.selected; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

bool ListState::select(std::size_t index, bool selected) {
    if (entries_[index].selected == selected) return false;
    if (!multiSelect_) {
        if (selected_ >= 0) {
            entries_[static_cast<std::size_t>(selected_)].selected = false;
        }
        selected_ = selected ? static_cast<int>(index) : -1;
    }
    entries_[index].selected = selected;
    return true;
}

int ListState::indexOf(const std::string& name) const {
    const auto found = std::find_if(entries_.begin(), entries_.end(),
                                    [&](const Entry& each) { return *each.name == name; });
    return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

std::size_t ListState::add(const std::string& name, bool selected, const std::string& icon,
                           int before) {
    const std::size_t end = entries_.size();
    const bool inside = before >= 0 && static_cast<std::size_t>(before) < end;
    const std::size_t index = inside ? static_cast<std::size_t>(before) : end;
    entries_.insert(
        entries_.begin() + static_cast<std::ptrdiff_t>(index),
        {.name = shared(name), .icon = shared(icon), .item = nullptr, .selected = false});
    if (inside) {
        renumber(index + 1);
    }
    if (selected) {
        select(index, true);
    }
    return index;
}

void ListState::remove(std::size_t index) {
    if (ListItemObject* item = entries_[index].item) {
        item->dispose();
    }
    entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(index));
    renumber(index);
}

void ListState::clear() {
    for (const Entry& each : entries_) {
        if (each.item != nullptr) {
            each.item->dispose();
        }
    }
    entries_.clear();
    selected_ = -1;
}

// The items from `from` on have other indices than before.
void ListState::renumber(std::size_t from) {
    selected_ = -1;
    for (std::size_t index = 0; index < entries_.size(); ++index) {
        if (index >= from && entries_[index].item != nullptr) {
            entries_[index].item->moved(index);
        }
        if (!multiSelect_ && entries_[index].selected) {
            selected_ = static_cast<int>(index);
        }
    }
}

void ListState::rename(std::size_t index, const std::string& name) {
    entries_[index].name = shared(name);
}

void ListState::changeIcon(std::size_t index, const std::string& icon) {
    entries_[index].icon = shared(icon);
}

// The API's getters are const and return objects that can be changed: so does a list here.
core::Ptr<core::ListItems> ListState::itemsApi() const {
    if (items_ != nullptr) return core::Ptr<core::ListItems>(items_);
    core::Ptr<ListItemsObject> made = make<ListItemsObject>(const_cast<ListState*>(this));
    items_ = made.get();
    return made;
}

core::Ptr<core::ListItem> ListState::itemApi(std::size_t index) const {
    if (ListItemObject* item = entries_[index].item) return core::Ptr<core::ListItem>(item);
    core::Ptr<ListItemObject> made = make<ListItemObject>(const_cast<ListState*>(this), index);
    entries_[index].item = made.get();
    return made;
}

core::Ptr<core::ListItem> ListState::selectedItemApi() const {
    const int index = selectedIndex();
    return index < 0 ? nullptr : itemApi(static_cast<std::size_t>(index));
}

}  // namespace host::ui
