#include "host/ui/toolbar/toolbar_panel_object.h"

#include "host/base/last_error.h"
#include "host/ui/toolbar/toolbar_tab_object.h"

namespace host::ui {

bool ToolbarPanelObject::deleteMe() {
    if (closed<"deleteMe">(*this)) return {};
    if (state_.native) {
        return fail(core::OperationFailed,
                    "ToolbarPanel::deleteMe: " + state_.id + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void ToolbarPanelObject::dispose() {
    state_.controls->dispose();
    owner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
