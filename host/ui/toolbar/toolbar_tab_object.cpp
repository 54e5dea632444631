#include "host/ui/toolbar/toolbar_tab_object.h"

#include <algorithm>

namespace host::ui {

core::Ptr<ToolbarPanelObject> ToolbarTabObject::add(const std::string& id, const std::string& name,
                                                    bool native, std::size_t place) {
    const auto at = panels_.begin() + static_cast<std::ptrdiff_t>(std::min(place, panels_.size()));
    return *panels_.insert(at, make<ToolbarPanelObject>(this, id, name, native));
}

void ToolbarTabObject::dispose() {
    disposeEntries(panels_);
    api_->dispose();
    invalidate();
}

}  // namespace host::ui
