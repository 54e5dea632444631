#include "tests/host/ui/host_test.h"

#include <Core/Application.h>
#include <Core/Preferences.h>

namespace host {
namespace {

using namespace adsk::core;

using PreferencesTest = HostTest;

TEST_F(PreferencesTest, TheLanguageIsEnglishUntilItIsSet) {
    const Ptr<GeneralPreferences> preferences =
        adsk::core::Application::get()->preferences()->generalPreferences();
    EXPECT_EQ(preferences->userLanguage(), EnglishLanguage);

    EXPECT_TRUE(preferences->userLanguage(CzechLanguage));
    EXPECT_EQ(adsk::core::Application::get()->preferences()->generalPreferences()->userLanguage(),
              CzechLanguage);
}

}  // namespace
}  // namespace host
