#include "host/ui/inputs/list_item_object.h"

#include "host/base/documented_points.h"
#include "host/base/last_error.h"

namespace host::ui {
namespace {

bool isNameless(const ListState& list) {
    return list.kind == InputKind::ButtonRow && documentedPoints().namelessRowItems;
}

}  // namespace

ListItemObject::~ListItemObject() {
    if (isValid()) {
        list_->entries_[index_].item = nullptr;
    }
}

std::string ListItemObject::name() const {
    if (closed<"name">(*this)) return {};
    return isNameless(*list_) ? std::string() : *entry().name;
}

bool ListItemObject::name(const std::string& value) {
    if (closed<"name">(*this)) return {};
    if (isNameless(*list_)) {
        return fail(core::OperationFailed, "ListItem::name: an item of a button row has no name");
    }
    list_->rename(index_, value);
    return true;
}

bool ListItemObject::isSelected() const {
    if (closed<"isSelected">(*this)) return {};
    return list_->isSelected(index_);
}

bool ListItemObject::isSelected(bool value) {
    if (closed<"isSelected">(*this)) return {};
    if (list_->select(index_, value)) {
        list_->changedByCode(value ? CodeChange::Selected : CodeChange::Value);
    }
    return true;
}

int ListItemObject::index() const {
    if (closed<"index">(*this)) return {};
    return static_cast<int>(index_);
}

std::string ListItemObject::icon() const {
    if (closed<"icon">(*this)) return {};
    return *entry().icon;
}

bool ListItemObject::icon(const std::string& value) {
    if (closed<"icon">(*this)) return {};
    list_->changeIcon(index_, value);
    return true;
}

bool ListItemObject::deleteMe() {
    if (closed<"deleteMe">(*this)) return {};
    if (list_->kind == InputKind::DropDown && list_->isSelected(index_) &&
        !list_->isMultiSelect()) {
        return fail(core::OperationFailed,
                    "ListItem::deleteMe: the selected item of a drop-down stays");
    }
    list_->remove(index_);
    return true;
}

}  // namespace host::ui
