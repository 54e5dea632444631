#pragma once

#include "host/base/object.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

/// The host's short lists of definitions, controls, panels, tabs, workspaces and palettes, and the
/// collections of the API over them.
namespace host::ui {

/// The first entry whose state has this id, null where there is none.
template <class Element>
core::Ptr<Element> entryOf(const std::vector<core::Ptr<Element>>& list, const std::string& id) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const auto& each) { return each->state().id == id; });
    return found == list.end() ? nullptr : *found;
}

/// The index of the first entry whose state has this id, the size of the list where there is none.
template <class Element>
std::size_t placeOf(const std::vector<core::Ptr<Element>>& list, const std::string& id) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const auto& each) { return each->state().id == id; });
    return static_cast<std::size_t>(found - list.begin());
}

/// The index for a new entry before or after the one of id `positionId`; the end of the list where
/// there is none.
template <class Element>
std::size_t newPlaceIn(const std::vector<core::Ptr<Element>>& list, const std::string& positionId,
                       bool isBefore) {
    const std::size_t place = placeOf(list, positionId);
    return place < list.size() && !isBefore ? place + 1 : place;
}

/// Removes an entry from its list and disposes of it.
template <class Element>
void removeEntry(std::vector<core::Ptr<Element>>& list, Element& entry) {
    const core::Ptr<Element> kept(&entry);
    std::erase(list, kept);
    entry.dispose();
}

/// Empties a list and disposes of its entries, in order.
template <class Element>
void disposeEntries(std::vector<core::Ptr<Element>>& list) {
    for (const core::Ptr<Element>& each : list) {
        each->dispose();
    }
    list.clear();
}

/// A collection of the API over a list of the host.
template <class Interface, class Element>
class CollectionObject : public Object<Interface> {
public:
    using Item = decltype(std::declval<const Interface&>().item(0));
    using List = std::vector<core::Ptr<Element>>;

    [[nodiscard]] std::size_t count() const override {
        if (closed<"count">(*this)) return {};
        return all().size();
    }

    [[nodiscard]] Item item(std::size_t index) const override {
        if (closed<"item">(*this)) return {};
        const List list = all();
        return index < list.size() ? list[index] : nullptr;
    }

    [[nodiscard]] Item itemById(const std::string& id) const override {
        if (closed<"itemById">(*this)) return {};
        return find(id);
    }

    /// @name For the host itself
    /// @{
    [[nodiscard]] virtual List all() const = 0;

    /// The first element of this id, null where there is none.
    [[nodiscard]] virtual core::Ptr<Element> find(const std::string& id) const {
        return entryOf(all(), id);
    }
    /// @}
};

}  // namespace host::ui
