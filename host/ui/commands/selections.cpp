#include "host/ui/commands/selections.h"

#include "host/base/last_error.h"

#include <Core/CoreAll.h>

#include <algorithm>
#include <iterator>

namespace host::ui {

core::Ptr<core::Point3D> SelectionObject::point() const {
    if (closed<"Selection::point">(*this)) return {};
    notImplemented("Selection::point");
    return {};
}

bool SelectionList::holds(const core::Ptr<core::Base>& entity) const {
    return held_.count(entity.get()) > 0;
}

core::Ptr<core::Selection> SelectionList::at(std::size_t index) const {
    return index < selections_.size() ? selections_[index] : nullptr;
}

bool SelectionList::add(const core::Ptr<core::Base>& entity) {
    if (!held_.insert(entity.get()).second) return false;
    selections_.push_back(make<SelectionObject>(entity));
    return true;
}

void SelectionList::remove(const core::Ptr<core::Base>& entity) {
    if (held_.erase(entity.get()) == 0) return;
    const auto found = std::find_if(selections_.begin(), selections_.end(),
                                    [&](const auto& each) { return each->selected() == entity; });
    (*found)->invalidate();
    selections_.erase(found);
}

void SelectionList::clear() {
    for (const core::Ptr<SelectionObject>& each : selections_) {
        each->invalidate();
    }
    selections_.clear();
    held_.clear();
}

std::vector<core::Ptr<core::Base>> SelectionList::entities() const {
    std::vector<core::Ptr<core::Base>> entities;
    std::transform(selections_.begin(), selections_.end(), std::back_inserter(entities),
                   [](const core::Ptr<SelectionObject>& each) { return each->selected(); });
    return entities;
}

std::size_t SelectionsObject::count() const {
    if (closed<"Selections::count">(*this)) return {};
    return list.count();
}

core::Ptr<core::Selection> SelectionsObject::item(std::size_t index) const {
    if (closed<"Selections::item">(*this)) return {};
    return list.at(index);
}

bool SelectionsObject::add(const core::Ptr<core::Base>& entity) {
    if (closed<"Selections::add">(*this)) return {};
    if (!entity) {
        return fail(core::BadApiCallError, "Selections::add: there is no entity");
    }
    list.add(entity);
    return true;
}

bool SelectionsObject::clear() {
    if (closed<"Selections::clear">(*this)) return {};
    list.clear();
    return true;
}

}  // namespace host::ui
