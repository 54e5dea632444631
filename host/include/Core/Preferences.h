#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

namespace adsk::core {

/// The general settings.
class GeneralPreferences : public Base {
public:
    static const char* classType();  ///< "adsk::core::GeneralPreferences"

    /// The language of the user interface, English at first.
    [[nodiscard]] virtual UserLanguages userLanguage() const = 0;
    /// Captions that exist already do not change.
    virtual bool userLanguage(UserLanguages value) = 0;
};

/// The user's settings of the host.
class Preferences : public Base {
public:
    static const char* classType();  ///< "adsk::core::Preferences"

    /// The general settings; never null.
    [[nodiscard]] virtual Ptr<GeneralPreferences> generalPreferences() const = 0;
};

}  // namespace adsk::core
