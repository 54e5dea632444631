#include "host/ui/toolbar/marking_menu.h"

namespace host::ui {

void LinearMarkingMenuObject::dispose() {
    controls_->dispose();
    invalidate();
}

}  // namespace host::ui
