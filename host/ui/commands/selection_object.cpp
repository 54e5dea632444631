#include "host/ui/commands/selection_object.h"

#include "host/base/last_error.h"

#include <Core/CoreAll.h>

namespace host::ui {

core::Ptr<core::Point3D> SelectionObject::point() const {
    if (closed<"point">(*this)) return {};
    notImplemented("Selection::point");
    return {};
}

}  // namespace host::ui
