#include "host/design/attributes_object.h"

#include "host/base/last_error.h"

#include <string_view>
#include <unordered_set>
#include <utility>

using adsk::core::Attribute;
using adsk::core::Base;
using adsk::core::Ptr;

namespace host {
namespace {

constexpr std::size_t kLongestValue = std::size_t{2} * 1024 * 1024;
constexpr std::size_t kLookedThrough = 16;

std::string keyOf(const std::string& group, const std::string& name) {
    return std::to_string(group.size()) + ":" + group + name;
}

bool fits(const std::string& value) {
    return value.size() <= kLongestValue ||
           fail(adsk::core::BadApiCallError, "the value of an attribute has at most 2 MB");
}

}  // namespace

AttributeObject::AttributeObject(AttributesObject& owner, AttributeData data)
    : owner_(&owner), data_(std::move(data)) {}

std::string AttributeObject::groupName() const {
    if (closed<"Attribute::groupName">(*this)) return {};
    return data_.group;
}

std::string AttributeObject::name() const {
    if (closed<"Attribute::name">(*this)) return {};
    return data_.name;
}

std::string AttributeObject::value() const {
    if (closed<"Attribute::value">(*this)) return {};
    return data_.value;
}

bool AttributeObject::value(const std::string& value) {
    if (closed<"Attribute::value">(*this)) return {};
    return setValue(value);
}

bool AttributeObject::setValue(const std::string& value) {
    if (!fits(value)) {
        return false;
    }
    data_.value = value;
    owner_->countEdit();
    return true;
}

Ptr<Base> AttributeObject::parent() const {
    if (closed<"Attribute::parent">(*this)) return {};
    return owner_->parentObject();
}

bool AttributeObject::deleteMe() {
    if (closed<"Attribute::deleteMe">(*this)) return {};
    owner_->take(*this);
    return true;
}

void AttributeObject::end() {
    owner_ = nullptr;
    invalidate();
}

AttributesObject::AttributesObject(Base& parent, Edits& edits, std::vector<AttributeData> data)
    : parent_(&parent), edits_(&edits) {
    items_.reserve(data.size());
    for (AttributeData& each : data) {
        items_.push_back(make<AttributeObject>(*this, std::move(each)));
        index(*items_.back());
    }
}

std::size_t AttributesObject::count() const {
    if (closed<"Attributes::count">(*this)) return {};
    return items_.size();
}

Ptr<Attribute> AttributesObject::item(std::size_t index) const {
    if (closed<"Attributes::item">(*this) || index >= items_.size()) return {};
    return items_[index];
}

Ptr<Attribute> AttributesObject::itemByName(const std::string& groupName,
                                            const std::string& name) const {
    if (closed<"Attributes::itemByName">(*this)) return {};
    return find(groupName, name);
}

std::vector<Ptr<Attribute>> AttributesObject::itemsByGroup(const std::string& groupName) const {
    if (closed<"Attributes::itemsByGroup">(*this)) return {};
    std::vector<Ptr<Attribute>> found;
    found.reserve(items_.size());
    for (const Ptr<AttributeObject>& each : items_) {
        if (each->data().group == groupName) {
            found.emplace_back(each);
        }
    }
    return found;
}

std::vector<std::string> AttributesObject::groupNames() const {
    if (closed<"Attributes::groupNames">(*this)) return {};
    std::vector<std::string> names;
    std::unordered_set<std::string_view> seen;
    for (const Ptr<AttributeObject>& each : items_) {
        if (seen.insert(each->data().group).second) {
            names.push_back(each->data().group);
        }
    }
    return names;
}

Ptr<Attribute> AttributesObject::add(const std::string& groupName, const std::string& name,
                                     const std::string& value) {
    if (closed<"Attributes::add">(*this)) return {};
    if (groupName.empty() || name.empty()) {
        fail(adsk::core::BadApiCallError, "an attribute needs a group and a name");
        return {};
    }
    if (AttributeObject* present = find(groupName, name)) {
        return present->setValue(value) ? present : nullptr;
    }
    if (!fits(value)) {
        return {};
    }
    items_.push_back(make<AttributeObject>(*this, AttributeData{groupName, name, value}));
    index(*items_.back());
    countEdit();
    return items_.back();
}

std::vector<AttributeData> AttributesObject::data() const {
    std::vector<AttributeData> all;
    all.reserve(items_.size());
    for (const Ptr<AttributeObject>& each : items_) {
        all.push_back(each->data());
    }
    return all;
}

void AttributesObject::take(AttributeObject& attribute) {
    const Ptr<AttributeObject> kept(&attribute);
    byName_.erase(keyOf(attribute.data().group, attribute.data().name));
    std::erase(items_, kept);
    attribute.end();
    countEdit();
}

void AttributesObject::end() {
    for (const Ptr<AttributeObject>& each : items_) {
        each->end();
    }
    items_.clear();
    byName_.clear();
    invalidate();
}

AttributeObject* AttributesObject::find(const std::string& group, const std::string& name) const {
    if (!byName_.empty()) {
        const auto found = byName_.find(keyOf(group, name));
        return found == byName_.end() ? nullptr : found->second;
    }
    for (const Ptr<AttributeObject>& each : items_) {
        if (each->data().group == group && each->data().name == name) {
            return each.get();
        }
    }
    return nullptr;
}

void AttributesObject::index(AttributeObject& attribute) {
    if (byName_.empty() && items_.size() <= kLookedThrough) {
        return;
    }
    if (byName_.empty()) {
        for (const Ptr<AttributeObject>& each : items_) {
            byName_[keyOf(each->data().group, each->data().name)] = each.get();
        }
    }
    byName_[keyOf(attribute.data().group, attribute.data().name)] = &attribute;
}

}  // namespace host
