#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

namespace fs = std::filesystem;

namespace test_support {
namespace {

const std::string kEmptyArchive = std::string("PK\5\6", 4) + std::string(18, '\0');

/// Whether this is Wine, whose Shell has no compressed folders.
bool isWine() {
    return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

class ZipOfTheShell : public HelpdeskTest {
protected:
    void SetUp() override {
        HelpdeskTest::SetUp();
        fs::create_directory(supportFolder());
    }

    /// The archive of a folder with one more file, right after the command.
    std::string pack() {
        put("screen_001.png", "picture");
        press("compressFolder");
        return contentOf("helpdesk.zip");
    }
};

TEST_F(ZipOfTheShell, LeavesAnArchiveAtLeast) {
    const std::string archive = pack();
    EXPECT_GE(archive.size(), 22U);
    EXPECT_EQ(archive.substr(0, 2), "PK");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ZipOfTheShell, LeavesTheEmptyRecordWhereThereAreNoCompressedFolders) {
    if (!isWine()) {
        GTEST_SKIP() << "here the Shell has them";
    }
    EXPECT_EQ(pack(), kEmptyArchive);
}

TEST_F(ZipOfTheShell, BeginsWithTheEmptyRecordInThePlaceOfAnEarlierArchive) {
    if (!isWine()) {
        GTEST_SKIP() << "here the Shell may have filled it";
    }
    put("helpdesk.zip", std::string(1000, 'z'));
    EXPECT_EQ(pack(), kEmptyArchive);
}

}  // namespace
}  // namespace test_support
