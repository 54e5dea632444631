#include "host/ui/preferences.h"

namespace host::ui {

core::UserLanguages GeneralPreferences::userLanguage() const {
    if (closed<"GeneralPreferences::userLanguage">(*this)) return {};
    return language_;
}

bool GeneralPreferences::userLanguage(core::UserLanguages value) {
    if (closed<"GeneralPreferences::userLanguage">(*this)) return {};
    language_ = value;
    return true;
}

core::Ptr<core::GeneralPreferences> Preferences::generalPreferences() const {
    if (closed<"Preferences::generalPreferences">(*this)) return {};
    return general_;
}

void Preferences::dispose() {
    general_->invalidate();
    invalidate();
}

}  // namespace host::ui
