#include "host/ui/commands/selection_list.h"

#include "host/ui/collection_object.h"

#include <algorithm>
#include <iterator>

namespace host::ui {

bool SelectionList::holds(const core::Ptr<core::Base>& entity) const {
    return held_.count(entity.get()) > 0;
}

core::Ptr<core::Selection> SelectionList::at(std::size_t index) const {
    return index < selections_.size() ? selections_[index] : nullptr;
}

bool SelectionList::add(const core::Ptr<core::Base>& entity, const Place& place) {
    if (!held_.insert(entity.get()).second) return false;
    selections_.push_back(make<SelectionObject>(entity, place));
    return true;
}

void SelectionList::remove(const core::Ptr<core::Base>& entity) {
    if (held_.erase(entity.get()) == 0) return;
    const auto found = std::find_if(selections_.begin(), selections_.end(), [&](const auto& each) {
        return each->state().entity == entity;
    });
    (*found)->dispose();
    selections_.erase(found);
}

void SelectionList::removeInvalid() {
    for (const core::Ptr<core::Base>& each : entities()) {
        if (!each->isValid()) {
            remove(each);
        }
    }
}

void SelectionList::clear() {
    disposeEntries(selections_);
    held_.clear();
}

std::vector<core::Ptr<core::Base>> SelectionList::entities() const {
    std::vector<core::Ptr<core::Base>> entities;
    std::transform(selections_.begin(), selections_.end(), std::back_inserter(entities),
                   [](const core::Ptr<SelectionObject>& each) { return each->state().entity; });
    return entities;
}

}  // namespace host::ui
