#pragma once

#include <algorithm>
#include <cstddef>
#include <string>

/// Finding things in the host's short lists of panels, tabs, workspaces and palettes.
namespace host::ui {

/// The first entry whose `identifier` is `id`, null where there is none.
template <class List>
typename List::value_type entryOf(const List& list, const std::string& id) {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const auto& each) { return each->identifier() == id; });
    return found == list.end() ? nullptr : *found;
}

/// The entry at an index, null outside the list.
template <class List>
typename List::value_type entryAt(const List& list, std::size_t index) {
    return index < list.size() ? list[index] : nullptr;
}

}  // namespace host::ui
