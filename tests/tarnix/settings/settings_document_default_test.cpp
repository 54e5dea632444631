#include "tests/tarnix/settings/settings_fixture.h"

#include "tarnix/settings/web_addresses.h"
#include "tests/support/settings.h"

namespace tarnix {
namespace {

using test_support::kDefaultSettings;

class DefaultSettings : public Settings {};

TEST_F(DefaultSettings, AreWrittenByteForByte) {
    createDefaultSettings(settingsFilePath());
    EXPECT_EQ(stored(), kDefaultSettings);
    EXPECT_TRUE(folder.read(kFile).starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
}

TEST_F(DefaultSettings, MissingFileIsMadeAndThenRead) {
    EXPECT_EQ(readCategoryItems("category", "bomItems"), Items());
    EXPECT_EQ(stored(), kDefaultSettings);
    EXPECT_EQ(readHelpdeskUrl(), defaultHelpdeskUrl);
}

TEST_F(DefaultSettings, MissingFileIsMadeForAnAddressAsWell) {
    EXPECT_EQ(readHelpdeskUrl(), "http://helpdesk.tarnix.example/");
    EXPECT_EQ(stored(), kDefaultSettings);
}

TEST_F(DefaultSettings, FileThatIsThereIsLeftAlone) {
    writeSettings("<category name=\"bomItems\"/>");
    const std::string before = folder.read(kFile);
    openSettingsDocument(settingsFilePath());
    EXPECT_EQ(folder.read(kFile), before);
}

TEST_F(DefaultSettings, FileThatIsNotXmlIsNotRepaired) {
    folder.write(kFile, "no xml");
    EXPECT_FALSE(openSettingsDocument(settingsFilePath()).documentElement());
    EXPECT_EQ(folder.read(kFile), "no xml");
}

TEST_F(DefaultSettings, FolderThatCannotBeWrittenThrows) {
    test::modulePath() = folder.windows("missing/Tarnix.dll");
    EXPECT_LT(comError([] { readCategoryItems("category", "bomItems"); }), 0);
    EXPECT_LT(comError([] { readHelpdeskUrl(); }), 0);
    EXPECT_LT(comError([] { replaceItems("bomItems", {"a;b"}); }), 0);
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(DefaultSettings, PathMayHoldSpacesAndSpecialCharacters) {
    const std::string name = "a b & (c) +d %e";
    test::modulePath() = folder.windows(name + ".dll");
    EXPECT_EQ(readHelpdeskUrl(), defaultHelpdeskUrl);
    EXPECT_TRUE(folder.has(name + "_configuration.xml"));
}

TEST_F(DefaultSettings, PathMayHoldLettersOfTheCodePage) {
    test::modulePath() = folder.windows("caf") + "\xE9.dll";
    EXPECT_EQ(readHelpdeskUrl(), defaultHelpdeskUrl);
    replaceItems("bomItems", {"a;1"});
    EXPECT_EQ(readCategoryItems("category", "bomItems"), Items{"a;1"});
    EXPECT_EQ(folder.count(), 1);
}

}  // namespace
}  // namespace tarnix
