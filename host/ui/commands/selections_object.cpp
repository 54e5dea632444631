#include "host/ui/commands/selections_object.h"

#include "host/base/last_error.h"

#include <Core/Enums.h>

namespace host::ui {

std::size_t SelectionsObject::count() const {
    if (closed<"count">(*this)) return {};
    return list.count();
}

core::Ptr<core::Selection> SelectionsObject::item(std::size_t index) const {
    if (closed<"item">(*this)) return {};
    return list.at(index);
}

bool SelectionsObject::add(const core::Ptr<core::Base>& entity) {
    if (closed<"add">(*this)) return {};
    if (!entity) {
        return fail(core::BadApiCallError, "Selections::add: the entity is null");
    }
    list.add(entity);
    return true;
}

bool SelectionsObject::clear() {
    if (closed<"clear">(*this)) return {};
    list.clear();
    return true;
}

void SelectionsObject::dispose() {
    list.clear();
    invalidate();
}

}  // namespace host::ui
