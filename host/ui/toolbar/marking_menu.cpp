#include "host/ui/toolbar/marking_menu.h"

namespace host::ui {

core::Ptr<core::ToolbarControls> LinearMarkingMenu::controls() const {
    if (closed<"LinearMarkingMenu::controls">(*this)) return {};
    return controls_;
}

void LinearMarkingMenu::dispose() {
    controls_->dispose();
    invalidate();
}

core::Ptr<core::LinearMarkingMenu> MarkingMenuArguments::linearMarkingMenu() const {
    if (refused<"MarkingMenuEventArgs::linearMarkingMenu">()) return {};
    return linear_;
}

core::Ptr<core::RadialMarkingMenu> MarkingMenuArguments::radialMarkingMenu() const {
    if (refused<"MarkingMenuEventArgs::radialMarkingMenu">()) return {};
    return radial_;
}

std::vector<core::Ptr<core::Base>> MarkingMenuArguments::selectedEntities() const {
    if (refused<"MarkingMenuEventArgs::selectedEntities">()) return {};
    return selected_;
}

}  // namespace host::ui
