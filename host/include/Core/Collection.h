#pragma once

#include <Core/Base.h>

#include <cstddef>
#include <string>

namespace adsk::core {

/// Objects of the host in a fixed order; the named collection classes derive from it.
template <class Item>
class CollectionOf : public Base {
public:
    /// The number of items; 0 for a collection that was deleted.
    [[nodiscard]] virtual std::size_t count() const = 0;

    /// The item at a place, counted from 0; null for an index outside the collection.
    [[nodiscard]] virtual Ptr<Item> item(std::size_t index) const = 0;
};

/// A collection whose items have ids.
template <class Item>
class CollectionById : public CollectionOf<Item> {
public:
    /// The first item of this id, null when there is none. Upper and lower case differ.
    [[nodiscard]] virtual Ptr<Item> itemById(const std::string& id) const = 0;
};

}  // namespace adsk::core
