#pragma once

#include "host/ui/commands/selection_object.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace host::ui {

/// Entities in the order they were selected, each once.
class SelectionList {
public:
    [[nodiscard]] std::size_t count() const { return selections_.size(); }
    [[nodiscard]] bool holds(const core::Ptr<core::Base>& entity) const;

    /// The selection at an index, null outside the list.
    [[nodiscard]] core::Ptr<core::Selection> at(std::size_t index) const;

    /// Adds an entity that was picked at that place; false for one that is there already.
    bool add(const core::Ptr<core::Base>& entity, const Place& place = {});
    void remove(const core::Ptr<core::Base>& entity);

    /// Removes the entities that are not valid any more.
    void removeInvalid();

    /// Empties the list and disposes of the selections.
    void clear();

    [[nodiscard]] std::vector<core::Ptr<core::Base>> entities() const;

private:
    std::vector<core::Ptr<SelectionObject>> selections_;
    std::unordered_set<const core::Base*> held_;
};

}  // namespace host::ui
