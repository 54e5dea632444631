#include "host/ui/inputs/list_state.h"

#include "host/ui/inputs/list_item_object.h"
#include "host/ui/inputs/list_items_object.h"

#include <algorithm>

namespace host::ui {
namespace {

// The list of a cell has a few items and takes no more memory than they need; a long one grows in
// leaps.
constexpr std::size_t kShort = 8;

}  // namespace

ListState::~ListState() = default;

void ListState::dispose() {
    clear();
    if (items_ != nullptr) {
        items_->dispose();
    }
    InputState::dispose();
}

int ListState::selectedIndex() const {
    if (!isMultiSelect()) return selected_;
    const auto found = std::find(chosen_->begin(), chosen_->end(), true);
    return found == chosen_->end() ? -1 : static_cast<int>(found - chosen_->begin());
}

bool ListState::select(std::size_t index, bool selected) {
    if (isSelected(index) == selected) return false;
    if (isMultiSelect()) {
        (*chosen_)[index] = selected;
    } else {
        selected_ = selected ? static_cast<int>(index) : -1;
    }
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
    const auto offset = static_cast<std::ptrdiff_t>(index);
    if (end < kShort) {
        entries_.reserve(end + 1);
    }
    entries_.insert(entries_.begin() + offset,
                    {.name = shared(name), .icon = shared(icon), .item = nullptr});
    if (isMultiSelect()) {
        chosen_->insert(chosen_->begin() + offset, false);
    } else if (selected_ >= static_cast<int>(index)) {
        ++selected_;
    }
    moveItems(index + 1);
    if (selected) {
        select(index, true);
    }
    return index;
}

void ListState::remove(std::size_t index) {
    if (ListItemObject* item = entries_[index].item) {
        item->dispose();
    }
    const auto offset = static_cast<std::ptrdiff_t>(index);
    entries_.erase(entries_.begin() + offset);
    if (isMultiSelect()) {
        chosen_->erase(chosen_->begin() + offset);
    } else if (selected_ == static_cast<int>(index)) {
        selected_ = -1;
    } else if (selected_ > static_cast<int>(index)) {
        --selected_;
    }
    moveItems(index);
}

void ListState::clear() {
    for (const Entry& each : entries_) {
        if (each.item != nullptr) {
            each.item->dispose();
        }
    }
    entries_.clear();
    selected_ = -1;
    if (isMultiSelect()) {
        chosen_->clear();
    }
}

// The items from `from` on have other indices than before.
void ListState::moveItems(std::size_t from) {
    for (std::size_t index = from; index < entries_.size(); ++index) {
        if (entries_[index].item != nullptr) {
            entries_[index].item->moved(index);
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
