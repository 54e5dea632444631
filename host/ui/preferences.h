#pragma once

#include "host/base/object.h"

#include <Core/Preferences.h>

namespace host::ui {

namespace core = adsk::core;

class GeneralPreferencesObject final : public Object<core::GeneralPreferences> {
public:
    GeneralPreferencesObject() = default;

    [[nodiscard]] core::UserLanguages userLanguage() const override;
    bool userLanguage(core::UserLanguages value) override;

private:
    core::UserLanguages language_ = core::EnglishLanguage;
};

class PreferencesObject final : public Object<core::Preferences> {
public:
    PreferencesObject() : general_(make<GeneralPreferencesObject>()) {}

    [[nodiscard]] core::Ptr<core::GeneralPreferences> generalPreferences() const override;
    void dispose();

private:
    core::Ptr<GeneralPreferencesObject> general_;
};

}  // namespace host::ui
