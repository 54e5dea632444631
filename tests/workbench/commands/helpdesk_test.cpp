#include "tests/workbench/helpdesk_fixture.h"

#include "host/base/utf8_path.h"

namespace fs = std::filesystem;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

namespace {

std::string folderLine(const fs::path& folder) {
    return "Support folder: " + host::toUtf8(fs::path(folder).make_preferred());
}

}  // namespace

TEST_F(Helpdesk, PressesTheButtonsInOrderInOneProcess) {
    const ProgramResult result = helpdesk({"open", "system-info", "clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_FALSE(fs::exists(support()));
    EXPECT_NE(result.output.find("Not opened: "), std::string::npos) << result.output;
    EXPECT_NE(result.output.find(host::toUtf8(fs::path("Helpdesk") / "") +
                                 " (--open lets the add-in do that)\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find(folderLine(support()) + " (does not exist)\n"), std::string::npos)
        << result.output;
    EXPECT_EQ(result.errors, "");
}

TEST_F(Helpdesk, ListsWhatTheSupportFolderHolds) {
    const ProgramResult result = helpdesk({"system-info"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, folderLine(support()) + "\n  SystemInfo.txt\n");
    EXPECT_EQ(readFile(support() / "SystemInfo.txt").rfind("Hardware information: \r\n", 0), 0U);
}

TEST_F(Helpdesk, KeepsTheSupportFolderForTheNextTimeAndDoesNotRememberIt) {
    helpdesk({"open", "system-info"});
    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(support() / "SystemInfo.txt"));
}

TEST_F(Helpdesk, ClearsNothingOfTheUsersWhenNoFolderIsRemembered) {
    fs::create_directory(userTemp() / "Helpdesk");
    writeFile(userTemp() / "Helpdesk" / "kept", "x");

    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(workingDirectory() / "kept"));
    EXPECT_TRUE(fs::exists(userTemp() / "Helpdesk" / "kept"));
    EXPECT_TRUE(fs::exists(folder.path() / "data" / "tarnix-workbench" / "Tarnix" / "Tarnix.dll"));
}

TEST_F(Helpdesk, UsesTheUsersSupportFolderWhenAskedTo) {
    const ProgramResult result = helpdesk({"system-info", "--here"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(userTemp() / "Helpdesk" / "SystemInfo.txt"));
    EXPECT_FALSE(fs::exists(support()));
}

TEST_F(Helpdesk, OpensTheUserGuideInTheHostsLanguage) {
    const ProgramResult english = helpdesk({"guide"});
    const ProgramResult czech = helpdesk({"guide", "--language", "cs"});

    EXPECT_NE(english.output.find("Tarnix_UsersGuide.pdf"), std::string::npos) << english.output;
    EXPECT_NE(czech.output.find("Tarnix_UzivatelskaPrirucka.pdf"), std::string::npos)
        << czech.output;
}

TEST_F(Helpdesk, RefusesALanguageWithoutAGuide) {
    const ProgramResult result = helpdesk({"guide", "--language", "de"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("--language"), std::string::npos) << result.errors;
}

TEST_F(Helpdesk, ReportsWhatTheAddinSays) {
    const ProgramResult result = helpdesk({"zip"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "the add-in says: Target directory does not exist.\n");
}

TEST_F(Helpdesk, LeavesAnArchiveThatIsComplete) {
    const ProgramResult result = helpdesk({"system-info", "zip"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string archive = readFile(support() / "helpdesk.zip");
    ASSERT_GE(archive.size(), 22U);
    // The end record is the last thing in it.
    EXPECT_EQ(archive.substr(archive.size() - 22, 4), std::string("PK\5\6", 4));
}

TEST_F(Helpdesk, AsksToOpenTheGuideAndTheAddress) {
    const ProgramResult result = helpdesk({"guide", "go"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("_UsersGuide.pdf (--open lets the add-in do that)\n"),
              std::string::npos)
        << result.output;
    EXPECT_NE(result.output.find("Not opened: http://"), std::string::npos);
}

TEST_F(Helpdesk, RefusesAnUnknownAction) {
    const ProgramResult result = helpdesk({"delete"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("capture-screen"), std::string::npos) << result.errors;
}

TEST_F(Helpdesk, ReportsWhatTheAddinThrows) {
    // The folder is remembered in UTF-8, which the remaining low byte of U+00E9 is not.
    variables.set("TMPDIR", fs::path(userTemp() / u8"\u00E9"));
    variables.set("TMP", fs::path(userTemp() / u8"\u00E9"));
    fs::create_directory(userTemp() / u8"\u00E9");

    const ProgramResult result = helpdesk({"--here", "open", "clear"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(
        result.errors,
        "tarnix-workbench: the add-in threw std::range_error (bad conversion) in OnExecute\n");
    EXPECT_TRUE(fs::exists(workingDirectory() / "kept"));
}

TEST_F(Helpdesk, NeedsAnAction) { EXPECT_EQ(helpdesk({}).status, 2); }
