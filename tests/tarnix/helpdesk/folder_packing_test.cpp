#include "tarnix/helpdesk/folder_packing.h"

#include "tests/support/files.h"
#include "tests/support/text.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include "host/session/system_overrides.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace test_support {
namespace {

using Zip = HelpdeskTest;

/// "PK", 5, 6 and eighteen zeros.
const std::string kEmptyArchive = std::string("PK\5\6", 4) + std::string(18, '\0');

const std::string kNoFolder = "Information (2): Target directory does not exist.\n";

TEST_F(Zip, WithoutASupportFolderShowsAMessage) {
    press("compressFolder");
    EXPECT_EQ(shownMessages(), kNoFolder);
    EXPECT_FALSE(fs::exists(supportFolder()));
    EXPECT_TRUE(host::system_overrides::sleeps().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(Zip, RightAfterDeleteHelpdeskFolderFindsNone) {
    press("openFolder");
    press("clearFolder");
    press("compressFolder");
    EXPECT_EQ(shownMessages(), kNoFolder);
}

TEST_F(Zip, RemembersTheFolderForItsDeletion) {
    fs::create_directory(supportFolder());
    put("screen_001.png");
    press("compressFolder");
    press("clearFolder");
    EXPECT_FALSE(fs::exists(supportFolder()));
}

TEST_F(Zip, RemembersAFolderThatIsMissing) {
    writeFile(fs::current_path() / "kept", "x");
    press("compressFolder");
    press("clearFolder");
    EXPECT_TRUE(fs::exists(fs::current_path() / "kept"));
}

TEST(EmptyArchive, IsTheEndRecordOfOneWithoutEntries) {
    const auto record = tarnix::emptyZipRecord();
    EXPECT_EQ(std::string(record.begin(), record.end()), kEmptyArchive);
}

TEST_F(Zip, ReplacesAnEarlierFileByTheEmptyRecord) {
    fs::create_directory(supportFolder());
    put("helpdesk.zip", "what was there before, and longer than the record");
    tarnix::createEmptyZip(supportFolderText() + "helpdesk.zip");
    EXPECT_EQ(contentOf("helpdesk.zip"), kEmptyArchive);
}

TEST_F(Zip, IsQuietWhereTheArchiveCannotBeWritten) {
    fs::create_directories(supportFolder() / "helpdesk.zip");
    press("compressFolder");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
