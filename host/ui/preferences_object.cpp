#include "host/ui/preferences_object.h"

namespace host::ui {

void PreferencesObject::dispose() {
    general_->dispose();
    invalidate();
}

}  // namespace host::ui
