#include "host/ui/toolbar/marking_menu.h"

namespace host::ui {

core::Ptr<core::ToolbarControls> LinearMarkingMenuObject::controls() const {
    if (closed<"LinearMarkingMenu::controls">(*this)) return {};
    return controls_;
}

void LinearMarkingMenuObject::dispose() {
    controls_->dispose();
    invalidate();
}

core::Ptr<core::LinearMarkingMenu> MarkingMenuEventArgsObject::linearMarkingMenu() const {
    if (refused<"MarkingMenuEventArgs::linearMarkingMenu">()) return {};
    return linear_;
}

core::Ptr<core::RadialMarkingMenu> MarkingMenuEventArgsObject::radialMarkingMenu() const {
    if (refused<"MarkingMenuEventArgs::radialMarkingMenu">()) return {};
    return radial_;
}

std::vector<core::Ptr<core::Base>> MarkingMenuEventArgsObject::selectedEntities() const {
    if (refused<"MarkingMenuEventArgs::selectedEntities">()) return {};
    return selected_;
}

}  // namespace host::ui
