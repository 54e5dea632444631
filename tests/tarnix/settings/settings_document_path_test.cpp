#include "tests/tarnix/settings/settings_fixture.h"

#include <stdexcept>

namespace tarnix {
namespace {

TEST(SettingsFilePath, LiesBesideTheModule) {
    test::modulePath() = "C:\\AddIns\\Tarnix\\Tarnix.dll";
    EXPECT_EQ(settingsFilePath(), "C:\\AddIns\\Tarnix\\Tarnix_configuration.xml");
}

TEST(SettingsFilePath, EarlierDllInThePathIsTheOneThatIsChanged) {
    test::modulePath() = "C:\\my.dlls\\Tarnix.dll";
    EXPECT_EQ(settingsFilePath(), "C:\\my_configuration.xmls\\Tarnix.dll");
}

TEST(SettingsFilePath, ThrowsForAPathThatWasCutOffBeforeItsEnd) {
    test::modulePath() = "C:\\AddIns\\Tarnix\\Tarn";
    try {
        static_cast<void>(settingsFilePath());
        FAIL() << "nothing thrown";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "invalid string position");
    }
}

}  // namespace
}  // namespace tarnix
