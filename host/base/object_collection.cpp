#include "host/base/last_error.h"
#include "host/base/object.h"

#include <Core/Enums.h>
#include <Core/ObjectCollection.h>

#include <algorithm>

namespace host {
namespace {

class ObjectCollectionObject final : public Object<core::ObjectCollection> {
public:
    using Items = std::vector<core::Ptr<core::Base>>;

    explicit ObjectCollectionObject(Items items) : items_(std::move(items)) {}

    [[nodiscard]] std::size_t count() const override {
        if (closed<"count">(*this)) return {};
        return items_.size();
    }
    [[nodiscard]] core::Ptr<core::Base> item(std::size_t index) const override {
        if (closed<"item">(*this)) return {};
        return index < items_.size() ? items_[index] : nullptr;
    }
    bool add(const core::Ptr<core::Base>& item) override;
    bool removeByItem(const core::Ptr<core::Base>& item) override;
    bool removeByIndex(std::size_t index) override;
    bool clear() override {
        if (closed<"clear">(*this)) return {};
        items_.clear();
        return true;
    }
    [[nodiscard]] bool contains(const core::Ptr<core::Base>& item) const override {
        if (closed<"contains">(*this)) return {};
        return std::find(items_.begin(), items_.end(), item) != items_.end();
    }
    [[nodiscard]] int find(const core::Ptr<core::Base>& item,
                           std::size_t startIndex) const override;
    [[nodiscard]] Items asArray() const override { return get<"asArray">(items_); }

private:
    Items items_;
};

bool ObjectCollectionObject::add(const core::Ptr<core::Base>& item) {
    if (closed<"add">(*this)) return {};
    if (!item) return fail(core::BadApiCallError, "ObjectCollection::add: the object is null");
    items_.push_back(item);
    return true;
}

bool ObjectCollectionObject::removeByItem(const core::Ptr<core::Base>& item) {
    if (closed<"removeByItem">(*this)) return {};
    const auto found = std::find(items_.begin(), items_.end(), item);
    if (found == items_.end()) {
        return fail(core::BadApiCallError, "ObjectCollection::removeByItem: it is not there");
    }
    items_.erase(found);
    return true;
}

bool ObjectCollectionObject::removeByIndex(std::size_t index) {
    if (closed<"removeByIndex">(*this)) return {};
    if (index >= items_.size()) {
        return fail(core::BadApiCallError, "ObjectCollection::removeByIndex: index " +
                                               std::to_string(index) + " is out of range");
    }
    items_.erase(items_.begin() + static_cast<std::ptrdiff_t>(index));
    return true;
}

int ObjectCollectionObject::find(const core::Ptr<core::Base>& item, std::size_t startIndex) const {
    if (closed<"find">(*this)) return -1;
    const auto from =
        items_.begin() + static_cast<std::ptrdiff_t>(std::min(startIndex, items_.size()));
    const auto found = std::find(from, items_.end(), item);
    return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

}  // namespace
}  // namespace host

namespace adsk::core {

Ptr<ObjectCollection> ObjectCollection::create() {
    if (host::refused<"ObjectCollection::create">()) return {};
    return host::make<host::ObjectCollectionObject>(std::vector<Ptr<Base>>());
}

Ptr<ObjectCollection> ObjectCollection::createWithArray(const std::vector<Ptr<Base>>& objects) {
    if (host::refused<"ObjectCollection::createWithArray">()) return {};
    if (std::find(objects.begin(), objects.end(), nullptr) != objects.end()) {
        host::fail(BadApiCallError, "ObjectCollection::createWithArray: an object is null");
        return {};
    }
    return host::make<host::ObjectCollectionObject>(objects);
}

}  // namespace adsk::core
