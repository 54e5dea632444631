#pragma once

#include "host/base/object.h"

#include <Core/Preferences.h>

namespace host::ui {

class GeneralPreferencesObject final : public Object<core::GeneralPreferences> {
public:
    GeneralPreferencesObject() = default;

    [[nodiscard]] core::UserLanguages userLanguage() const override {
        return get<"userLanguage">(language_);
    }
    bool userLanguage(core::UserLanguages value) override {
        return set<"userLanguage">(language_, value);
    }

    void dispose() { invalidate(); }

private:
    core::UserLanguages language_ = core::EnglishLanguage;
};

class PreferencesObject final : public Object<core::Preferences> {
public:
    PreferencesObject() : general_(make<GeneralPreferencesObject>()) {}

    [[nodiscard]] core::Ptr<core::GeneralPreferences> generalPreferences() const override {
        return get<"generalPreferences">(general_);
    }
    void dispose();

private:
    core::Ptr<GeneralPreferencesObject> general_;
};

}  // namespace host::ui
