#include "host/ui/inputs/list_items_object.h"

namespace host::ui {

ListItemsObject::~ListItemsObject() { list_->items_ = nullptr; }

std::size_t ListItemsObject::count() const {
    if (closed<"count">(*this)) return {};
    return list_->entries().size();
}

core::Ptr<core::ListItem> ListItemsObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    return index < list_->entries().size() ? list_->itemApi(index) : nullptr;
}

core::Ptr<core::ListItem> ListItemsObject::add(const std::string& name, bool isSelected,
                                               const std::string& icon, int beforeIndex) {
    if (closed<"add">(*this)) return {};
    return list_->itemApi(list_->add(name, isSelected, icon, beforeIndex));
}

bool ListItemsObject::clear() {
    if (closed<"clear">(*this)) return {};
    list_->clear();
    return true;
}

}  // namespace host::ui
