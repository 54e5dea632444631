#include "host/ui/preferences.h"

namespace host::ui {

core::UserLanguages GeneralPreferencesObject::userLanguage() const {
    if (closed<"GeneralPreferences::userLanguage">(*this)) return {};
    return language_;
}

bool GeneralPreferencesObject::userLanguage(core::UserLanguages value) {
    if (closed<"GeneralPreferences::userLanguage">(*this)) return {};
    language_ = value;
    return true;
}

core::Ptr<core::GeneralPreferences> PreferencesObject::generalPreferences() const {
    if (closed<"Preferences::generalPreferences">(*this)) return {};
    return general_;
}

void PreferencesObject::dispose() {
    general_->invalidate();
    invalidate();
}

}  // namespace host::ui
