#include "host/design/occurrence_object.h"

#include "host/base/last_error.h"
#include "host/design/component_object.h"
#include "host/design/geometry_objects.h"
#include "host/design/model.h"
#include "host/design/physical_properties_object.h"
#include "host/design/transform.h"

#include <array>
#include <charconv>
#include <optional>
#include <string_view>
#include <utility>

namespace host {
namespace {

constexpr std::size_t kLongestNumber = 12;

}  // namespace

OccurrenceObject::OccurrenceObject(OccurrenceListObject& list, std::size_t index)
    : component_(&list.owner()->childComponent(list.owner()->place(index))),
      index_(index),
      list_(&list) {}

OccurrenceData& OccurrenceObject::place() const { return list_->owner()->place(index_); }

core::Ptr<fusion::Component> OccurrenceObject::component() const {
    return get<"component">(component_);
}

core::Ptr<fusion::OccurrenceList> OccurrenceObject::childOccurrences() const {
    if (closed<"childOccurrences">(*this)) return {};
    const bool isLeaf = component_->state().children.empty();
    // It may have been a leaf when it was asked before.
    if (!children_ || (!isLeaf && children_->owner() == nullptr)) {
        children_ =
            isLeaf ? component_->model().emptyList()
                   : make<OccurrenceListObject>(component_, const_cast<OccurrenceObject*>(this));
    }
    return children_;
}

std::string OccurrenceObject::name() const {
    if (closed<"name">(*this)) return {};
    return currentName();
}

std::string OccurrenceObject::currentName() const {
    std::string text;
    appendName(text);
    return text;
}

std::string OccurrenceObject::fullPathName() const {
    if (closed<"fullPathName">(*this)) return {};
    std::size_t length = 0;
    std::size_t levels = 0;
    for (const OccurrenceObject* each = this; each != nullptr; each = each->parent()) {
        length += each->nameLength() + 1;
        ++levels;
    }
    std::array<const OccurrenceObject*, 16> few = {};
    std::vector<const OccurrenceObject*> many(levels > few.size() ? levels : 0);
    const OccurrenceObject** path = many.empty() ? few.data() : many.data();
    std::size_t at = levels;
    for (const OccurrenceObject* each = this; each != nullptr; each = each->parent()) {
        path[--at] = each;
    }
    std::string text;
    text.reserve(length);
    for (std::size_t level = 0; level < levels; ++level) {
        if (level > 0) {
            text += '+';
        }
        path[level]->appendName(text);
    }
    return text;
}

std::size_t OccurrenceObject::nameLength() const {
    return component_->state().name.size() + kLongestNumber;
}

void OccurrenceObject::appendName(std::string& text) const {
    std::array<char, kLongestNumber> digits = {};
    const auto end = std::to_chars(digits.begin(), digits.end(), place().instance).ptr;
    text += component_->state().name;
    text += ':';
    text.append(digits.data(), end);
}

bool OccurrenceObject::isGrounded() const {
    if (closed<"isGrounded">(*this)) return {};
    return place().grounded;
}

bool OccurrenceObject::isGrounded(bool value) {
    if (closed<"isGrounded">(*this)) return {};
    component_->model().edits.history.remember(
        [owner = list_->owner(), index = index_, old = place().grounded] {
            owner->place(index).grounded = old;
        });
    place().grounded = value;
    ++component_->model().edits.all;
    return true;
}

bool OccurrenceObject::isReferencedComponent() const {
    if (closed<"isReferencedComponent">(*this)) return {};
    return component_->state().document != list_->owner()->state().document;
}

core::Ptr<fusion::PhysicalProperties> OccurrenceObject::physicalProperties() const {
    if (closed<"physicalProperties">(*this)) return {};
    return make<PhysicalPropertiesObject>(measure(*component_));
}

OccurrenceObject* OccurrenceObject::parent() const { return list_->parent(); }

const ComponentObject* OccurrenceObject::top() const {
    if (list_ == nullptr) {
        return nullptr;
    }
    const OccurrenceObject* highest = this;
    while (highest->parent() != nullptr) {
        highest = highest->parent();
    }
    return highest->list_->owner();
}

std::size_t OccurrenceObject::depth() const {
    std::size_t assemblies = 0;
    for (const OccurrenceObject* each = parent(); each != nullptr; each = each->parent()) {
        ++assemblies;
    }
    return assemblies;
}

Transform OccurrenceObject::placement() const {
    Transform result = place().transform;
    for (const OccurrenceObject* each = parent(); each != nullptr; each = each->parent()) {
        result = each->place().transform * result;
    }
    return result;
}

void OccurrenceObject::dispose() {
    // The empty list is that of all leaves.
    if (children_ && children_->owner() != nullptr) {
        children_->dispose();
    }
    children_ = nullptr;
    component_ = nullptr;
    list_ = nullptr;
    invalidate();
}

OccurrenceListObject::OccurrenceListObject(ComponentObject* owner, OccurrenceObject* parent)
    : owner_(owner),
      parent_(parent),
      items_(owner == nullptr ? 0 : owner->state().children.size()) {}

std::size_t OccurrenceListObject::size() const {
    return owner_ == nullptr ? 0 : owner_->state().children.size();
}

std::size_t OccurrenceListObject::count() const {
    if (closed<"count">(*this)) return {};
    return size();
}

core::Ptr<fusion::Occurrence> OccurrenceListObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    return at(index);
}

core::Ptr<fusion::Occurrence> OccurrenceListObject::at(std::size_t index) const {
    if (index >= size()) {
        return {};
    }
    if (index >= items_.size()) {
        items_.resize(size());
    }
    core::Ptr<OccurrenceObject>& item = items_[index];
    // One that is not valid was taken back, and its place given to another one since.
    const OccurrenceData& place = owner_->place(index);
    if ((!item || !item->isValid()) && !place.absent) {
        item = make<OccurrenceObject>(const_cast<OccurrenceListObject&>(*this), index);
        owner_->model().noteMade(item, place.component);
    }
    return item;
}

core::Ptr<fusion::Occurrence> OccurrenceListObject::itemByName(const std::string& name) const {
    if (closed<"itemByName">(*this)) return {};
    for (std::size_t index = 0; index < size(); ++index) {
        const core::Ptr<OccurrenceObject> each = at(index);
        if (each && each->currentName() == name) {
            return each;
        }
    }
    return {};
}

void OccurrenceListObject::dispose() {
    for (const core::Ptr<OccurrenceObject>& each : items_) {
        if (each) {
            each->dispose();
        }
    }
    items_.clear();
    owner_ = nullptr;
    parent_ = nullptr;
    invalidate();
}

OccurrencesObject::OccurrencesObject(ComponentObject& owner)
    : list_(make<OccurrenceListObject>(&owner, nullptr)) {}

std::size_t OccurrencesObject::count() const {
    if (closed<"count">(*this)) return {};
    return list_->size();
}

core::Ptr<fusion::Occurrence> OccurrencesObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    return list_->at(index);
}

core::Ptr<fusion::Occurrence> OccurrencesObject::addNewComponent(
    const core::Ptr<core::Matrix3D>& transform) {
    if (closed<"addNewComponent">(*this)) return {};
    const std::optional<Transform> placement = transformOf(transform);
    if (!placement) {
        fail(core::BadApiCallError, "Occurrences::addNewComponent: the transform is null");
        return {};
    }
    if (!list_->owner()->addNewComponent(*placement)) return {};
    return list_->at(list_->size() - 1);
}

void OccurrencesObject::dispose() {
    list_->dispose();
    invalidate();
}

}  // namespace host
