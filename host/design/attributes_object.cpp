#include "host/design/attributes_object.h"

#include "host/base/last_error.h"

#include <algorithm>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kLongestValue = std::size_t{2} * 1024 * 1024;
constexpr std::size_t kLookedThrough = 16;

std::string keyOf(const std::string& group, const std::string& name) {
    return std::to_string(group.size()) + ":" + group + name;
}

bool fits(const std::string& value) {
    return value.size() <= kLongestValue ||
           fail(core::BadApiCallError, "the value of an attribute has at most 2 MB");
}

}  // namespace

AttributeObject::AttributeObject(AttributesObject& owner, AttributeData data)
    : owner_(&owner),
      group_(owner.share(data.group)),
      name_(owner.share(data.name)),
      value_(std::move(data.value)) {}

std::string AttributeObject::groupName() const {
    if (closed<"groupName">(*this)) return {};
    return *group_;
}

std::string AttributeObject::name() const {
    if (closed<"name">(*this)) return {};
    return *name_;
}

bool AttributeObject::value(const std::string& value) {
    if (closed<"value">(*this)) return {};
    return setValue(value);
}

bool AttributeObject::setValue(const std::string& value) {
    if (!fits(value)) {
        return false;
    }
    owner_->history().remember([owner = owner_, old = snapshot()] { owner->restore(old); });
    value_ = value;
    owner_->countEdit();
    return true;
}

core::Ptr<core::Base> AttributeObject::parent() const {
    if (closed<"parent">(*this)) return {};
    return owner_->parentObject();
}

bool AttributeObject::deleteMe() {
    if (closed<"deleteMe">(*this)) return {};
    owner_->take(*this);
    return true;
}

void AttributeObject::dispose() {
    owner_ = nullptr;
    invalidate();
}

AttributesObject::AttributesObject(core::Base& parent, Edits& edits, StringPool& pool,
                                   std::vector<AttributeData> data)
    : parent_(&parent), edits_(&edits), pool_(&pool) {
    items_.reserve(data.size());
    for (AttributeData& each : data) {
        items_.push_back(make<AttributeObject>(*this, std::move(each)));
        index(*items_.back());
    }
}

std::size_t AttributesObject::count() const {
    if (closed<"count">(*this)) return {};
    return items_.size();
}

core::Ptr<core::Attribute> AttributesObject::item(std::size_t index) const {
    if (closed<"item">(*this) || index >= items_.size()) return {};
    return items_[index];
}

core::Ptr<core::Attribute> AttributesObject::itemByName(const std::string& groupName,
                                                        const std::string& name) const {
    if (closed<"itemByName">(*this)) return {};
    return find(groupName, name);
}

std::vector<core::Ptr<core::Attribute>> AttributesObject::itemsByGroup(
    const std::string& groupName) const {
    if (closed<"itemsByGroup">(*this)) return {};
    std::vector<core::Ptr<core::Attribute>> found;
    found.reserve(items_.size());
    for (const core::Ptr<AttributeObject>& each : items_) {
        if (each->ownGroup() == groupName) {
            found.emplace_back(each);
        }
    }
    return found;
}

std::vector<std::string> AttributesObject::groupNames() const {
    if (closed<"groupNames">(*this)) return {};
    std::vector<std::string> names;
    std::unordered_set<std::string_view> seen;
    for (const core::Ptr<AttributeObject>& each : items_) {
        if (seen.insert(each->ownGroup()).second) {
            names.push_back(each->ownGroup());
        }
    }
    return names;
}

core::Ptr<core::Attribute> AttributesObject::add(const std::string& groupName,
                                                 const std::string& name,
                                                 const std::string& value) {
    if (closed<"add">(*this)) return {};
    if (groupName.empty() || name.empty()) {
        fail(core::BadApiCallError, "an attribute needs a group and a name");
        return {};
    }
    if (AttributeObject* present = find(groupName, name)) {
        return present->setValue(value) ? present : nullptr;
    }
    if (!fits(value)) {
        return {};
    }
    items_.push_back(make<AttributeObject>(
        *this, AttributeData{.group = groupName, .name = name, .value = value}));
    index(*items_.back());
    history().remember([this, groupName, name] { takeAdded(groupName, name); });
    countEdit();
    return items_.back();
}

std::vector<AttributeData> AttributesObject::snapshot() const {
    std::vector<AttributeData> all;
    all.reserve(items_.size());
    for (const core::Ptr<AttributeObject>& each : items_) {
        all.push_back(each->snapshot());
    }
    return all;
}

void AttributesObject::take(AttributeObject& attribute) {
    const core::Ptr<AttributeObject> kept(&attribute);
    if (byName_) {
        byName_->erase(keyOf(attribute.ownGroup(), attribute.ownName()));
    }
    const auto place = std::find(items_.begin(), items_.end(), kept);
    history().remember([this, at = static_cast<std::size_t>(place - items_.begin()),
                        data = kept->snapshot()] { putBack(at, data); });
    items_.erase(place);
    attribute.dispose();
    countEdit();
}

// The one that was deleted stays so: handles to it are not valid any more.
void AttributesObject::putBack(std::size_t place, const AttributeData& data) {
    const auto at = items_.begin() + static_cast<std::ptrdiff_t>(std::min(place, items_.size()));
    index(**items_.insert(at, make<AttributeObject>(*this, data)));
}

void AttributesObject::restore(const AttributeData& data) {
    if (AttributeObject* present = find(data.group, data.name)) {
        present->restore(data.value);
    }
}

void AttributesObject::takeAdded(const std::string& group, const std::string& name) {
    if (AttributeObject* present = find(group, name)) {
        take(*present);
    }
}

void AttributesObject::dispose() {
    for (const core::Ptr<AttributeObject>& each : items_) {
        each->dispose();
    }
    items_.clear();
    byName_.reset();
    invalidate();
}

AttributeObject* AttributesObject::find(const std::string& group, const std::string& name) const {
    if (byName_) {
        const auto found = byName_->find(keyOf(group, name));
        return found == byName_->end() ? nullptr : found->second;
    }
    for (const core::Ptr<AttributeObject>& each : items_) {
        if (each->ownGroup() == group && each->ownName() == name) {
            return each.get();
        }
    }
    return nullptr;
}

void AttributesObject::index(AttributeObject& attribute) {
    if (!byName_ && items_.size() <= kLookedThrough) {
        return;
    }
    if (!byName_) {
        byName_ = std::make_unique<std::unordered_map<std::string, AttributeObject*>>();
        for (const core::Ptr<AttributeObject>& each : items_) {
            (*byName_)[keyOf(each->ownGroup(), each->ownName())] = each.get();
        }
    }
    (*byName_)[keyOf(attribute.ownGroup(), attribute.ownName())] = &attribute;
}

}  // namespace host
