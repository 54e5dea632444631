#pragma once

#include <Core/Base.h>
#include <Core/Enums.h>

namespace adsk::core {

class GeneralPreferences : public Base {
public:
    static const char* classType();

    /// The language of the user interface, English at first.
    [[nodiscard]] virtual UserLanguages userLanguage() const = 0;
    virtual bool userLanguage(UserLanguages value) = 0;
};

/// What the user has set in the host.
class Preferences : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<GeneralPreferences> generalPreferences() const = 0;
};

}  // namespace adsk::core
