#include "host/ui/toolbar/marking_menu.h"

namespace host::ui {

void LinearMarkingMenuObject::dispose() {
    state_.controls->dispose();
    invalidate();
}

}  // namespace host::ui
