#include "host/ui/commands/selection_object.h"

#include "host/design/geometry_objects.h"

#include <Core/CoreAll.h>

namespace host::ui {

core::Ptr<core::Point3D> SelectionObject::point() const {
    if (closed<"point">(*this)) return {};
    return makePoint(state_.place);
}

}  // namespace host::ui
