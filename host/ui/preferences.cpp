#include "host/ui/preferences.h"

namespace host::ui {

void PreferencesObject::dispose() {
    general_->invalidate();
    invalidate();
}

}  // namespace host::ui
