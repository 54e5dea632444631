#pragma once

#include <Core/Collection.h>

#include <cstddef>
#include <vector>

namespace adsk::core {

/// Objects of any class in the order in which they were added; one may be in it several times.
class ObjectCollection : public CollectionOf<Base> {
public:
    static const char* classType();  ///< "adsk::core::ObjectCollection"

    /// A new, empty collection; never null.
    static Ptr<ObjectCollection> create();
    /// A new collection of these objects; null if one of them is null.
    static Ptr<ObjectCollection> createWithArray(const std::vector<Ptr<Base>>& objects);

    /// Adds an object at the end; false for null.
    virtual bool add(const Ptr<Base>& item) = 0;

    /// Removes the first item that is this object; false when there is none.
    virtual bool removeByItem(const Ptr<Base>& item) = 0;
    /// Removes the item at a place; false for an index outside the collection.
    virtual bool removeByIndex(std::size_t index) = 0;
    /// Removes all items.
    virtual bool clear() = 0;

    /// Whether an object is in it.
    [[nodiscard]] virtual bool contains(const Ptr<Base>& item) const = 0;
    /// The place of an object at or after `startIndex`, -1 when there is none.
    [[nodiscard]] virtual int find(const Ptr<Base>& item, std::size_t startIndex = 0) const = 0;

    /// All items, in order.
    [[nodiscard]] virtual std::vector<Ptr<Base>> asArray() const = 0;
};

}  // namespace adsk::core
