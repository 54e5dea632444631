#include "host/ui/toolbar/command_control_object.h"

#include "host/ui/toolbar/toolbar_controls_object.h"

#include <algorithm>

namespace host::ui {

core::Ptr<core::Base> CommandControlObject::parent() const {
    if (closed<"ToolbarControl::parent">(*this)) return {};
    return core::Ptr<core::Base>(owner_->parent());
}

std::size_t CommandControlObject::index() const {
    if (closed<"ToolbarControl::index">(*this)) return {};
    const ToolbarControlsObject::List all = owner_->all();
    const auto found = std::find_if(all.begin(), all.end(),
                                    [this](const auto& each) { return each.get() == this; });
    return static_cast<std::size_t>(found - all.begin());
}

bool CommandControlObject::deleteMe() {
    if (closed<"ToolbarControl::deleteMe">(*this)) return {};
    owner_->remove(*this);
    return true;
}

core::Ptr<core::CommandDefinition> CommandControlObject::commandDefinition() const {
    if (closed<"commandDefinition">(*this)) return {};
    if (!state_.definition->isValid()) return nullptr;
    return state_.definition;
}

bool CommandControlObject::isPromoted(bool value) {
    if (closed<"isPromoted">(*this)) return {};
    state_.promoted = value && owner_->inPanel();
    return true;
}

void CommandControlObject::dispose() {
    owner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
