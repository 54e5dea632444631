#pragma once

#include "host/base/object.h"

#include <Core/Preferences.h>

namespace host::ui {

namespace core = adsk::core;

class GeneralPreferences final : public Object<core::GeneralPreferences> {
public:
    GeneralPreferences() = default;

    [[nodiscard]] core::UserLanguages userLanguage() const override;
    bool userLanguage(core::UserLanguages value) override;

private:
    core::UserLanguages language_ = core::EnglishLanguage;
};

class Preferences final : public Object<core::Preferences> {
public:
    Preferences() : general_(make<GeneralPreferences>()) {}

    [[nodiscard]] core::Ptr<core::GeneralPreferences> generalPreferences() const override;
    void dispose();

private:
    core::Ptr<GeneralPreferences> general_;
};

}  // namespace host::ui
