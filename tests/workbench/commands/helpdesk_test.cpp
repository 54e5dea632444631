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

TEST_F(HelpdeskOfTheWorkbench, PressesTheButtonsInOrderInOneProcess) {
    const ProgramResult result = helpdesk({"open", "system-info", "clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_FALSE(fs::exists(support()));
    EXPECT_NE(result.output.find("The add-in asked to open "), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("Helpdesk\\; use --open to let it\n"), std::string::npos);
    EXPECT_NE(result.output.find(folderLine(support()) + ", not there\n"), std::string::npos)
        << result.output;
    EXPECT_EQ(result.errors, "");
}

TEST_F(HelpdeskOfTheWorkbench, ListsWhatTheSupportFolderHolds) {
    const ProgramResult result = helpdesk({"system-info"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(result.output, folderLine(support()) + "\n  SystemInfo.txt\n");
    EXPECT_EQ(readFile(support() / "SystemInfo.txt").rfind("Hardware information: \r\n", 0), 0U);
}

TEST_F(HelpdeskOfTheWorkbench, KeepsTheSupportFolderForTheNextTimeAndDoesNotRememberIt) {
    helpdesk({"open", "system-info"});
    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(support() / "SystemInfo.txt"));
}

TEST_F(HelpdeskOfTheWorkbench, ClearsNothingOfThePersonsWhenNoFolderIsRemembered) {
    fs::create_directory(mine() / "Helpdesk");
    writeFile(mine() / "Helpdesk" / "kept", "x");

    const ProgramResult result = helpdesk({"clear"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(stand() / "kept"));
    EXPECT_TRUE(fs::exists(mine() / "Helpdesk" / "kept"));
    EXPECT_TRUE(fs::exists(folder.path() / "data" / "tarnix-workbench" / "Tarnix" / "Tarnix.dll"));
}

TEST_F(HelpdeskOfTheWorkbench, UsesThePersonsSupportFolderWhenAskedTo) {
    const ProgramResult result = helpdesk({"system-info", "--here"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_TRUE(fs::exists(mine() / "Helpdesk" / "SystemInfo.txt"));
    EXPECT_FALSE(fs::exists(support()));
}

TEST_F(HelpdeskOfTheWorkbench, TellsWhatTheAddinSays) {
    const ProgramResult result = helpdesk({"zip"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "the add-in says: Target directory does not exist.\n");
}

TEST_F(HelpdeskOfTheWorkbench, LeavesAnArchiveThatIsComplete) {
    const ProgramResult result = helpdesk({"system-info", "zip"});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string archive = readFile(support() / "helpdesk.zip");
    ASSERT_GE(archive.size(), 22U);
    // The end record is the last thing in it.
    EXPECT_EQ(archive.substr(archive.size() - 22, 4), std::string("PK\5\6", 4));
}

TEST_F(HelpdeskOfTheWorkbench, AsksToOpenTheGuideAndTheAddress) {
    const ProgramResult result = helpdesk({"guide", "go"});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("_UsersGuide.pdf; use --open to let it\n"), std::string::npos);
    EXPECT_NE(result.output.find("The add-in asked to open http://"), std::string::npos);
}

TEST_F(HelpdeskOfTheWorkbench, RefusesAnUnknownAction) {
    const ProgramResult result = helpdesk({"delete"});

    EXPECT_EQ(result.status, 2);
    EXPECT_NE(result.errors.find("capture-screen"), std::string::npos) << result.errors;
}

TEST_F(HelpdeskOfTheWorkbench, TellsWhatTheAddinRaised) {
    // What is left of the low byte of U+00E9 is no UTF-8, in which the folder is remembered.
    set("TMPDIR", fs::path(mine() / u8"\u00E9"));
    set("TMP", fs::path(mine() / u8"\u00E9"));
    fs::create_directory(mine() / u8"\u00E9");

    const ProgramResult result = helpdesk({"--here", "open", "clear"});

    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(
        result.errors,
        "tarnix-workbench: the add-in threw std::range_error (bad conversion) in OnExecute\n");
    EXPECT_TRUE(fs::exists(stand() / "kept"));
}

TEST_F(HelpdeskOfTheWorkbench, WantsAnAction) { EXPECT_EQ(helpdesk({}).status, 2); }
