#include "tarnix/helpdesk/folder_packing.h"
#include "tarnix/platform/posix/archive_work.h"

#include "tests/support/files.h"
#include "tests/support/text.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"
#include "tests/tarnix/helpdesk/posix/held_file.h"

#include "host/session/system_overrides.h"

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <iterator>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace test_support {
namespace {

const std::string kEmptyArchive = std::string("PK\5\6", 4) + std::string(18, '\0');

/// What a command line prints.
std::string outputOf(const std::string& command) {
    std::string output;
    FILE* const pipe = ::popen(command.c_str(), "r");
    std::array<char, 256> part = {};
    while (std::fgets(part.data(), static_cast<int>(part.size()), pipe) != nullptr) {
        output += part.data();
    }
    output += ::pclose(pipe) == 0 ? "" : "failed\n";
    return output;
}

class ZipArchive : public HelpdeskTest {
protected:
    void SetUp() override {
        HelpdeskTest::SetUp();
        fs::create_directory(supportFolder());
    }

    [[nodiscard]] std::string archive() const { return supportFolder() / "helpdesk.zip"; }

    /// Waits until the archive is more than the empty record.
    void waitUntilFilled() const {
        constexpr std::uintmax_t kEmpty = 22;
        for (int i = 0; i < 600 && fs::file_size(archive()) <= kEmpty; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(50));
        }
        ASSERT_GT(fs::file_size(archive()), kEmpty);
    }

    /// The file of the folder that the packing comes to after all others.
    [[nodiscard]] fs::path lastFile() const {
        fs::path last;
        for (const fs::directory_entry& entry : fs::directory_iterator(supportFolder())) {
            last = entry.path();
        }
        return last;
    }

    [[nodiscard]] long filesInFolder() const {
        return std::distance(fs::directory_iterator(supportFolder()), {});
    }

    /// The names of the entries, sorted, a line for each.
    [[nodiscard]] std::string entries() const {
        return outputOf("unzip -Z1 '" + archive() + "' | LC_ALL=C sort");
    }
};

TEST_F(ZipArchive, HoldsTheFilesOfTheFolderAndNotItself) {
    put("screen_001.png", std::string(100'000, 'p'));
    put("SystemInfo.txt", "text");
    press("compressFolder");
    waitUntilFilled();
    EXPECT_EQ(entries(), "SystemInfo.txt\nscreen_001.png\n");
    EXPECT_EQ(outputOf("unzip -p '" + archive() + "' SystemInfo.txt"), "text");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ZipArchive, PassesTheTestOfItsEntries) {
    put("screen_001.png", "picture");
    put("empty.txt", "");
    press("compressFolder");
    waitUntilFilled();
    EXPECT_EQ(outputOf("unzip -tqq '" + archive() + "' 2>&1"), "");
}

TEST_F(ZipArchive, OfASecondTimeHasNoEntryOfWhatIsGone) {
    put("screen_001.png");
    press("compressFolder");
    waitUntilFilled();
    fs::remove(supportFolder() / "screen_001.png");
    put("screen_002.png");
    press("compressFolder");
    waitUntilFilled();
    EXPECT_EQ(entries(), "screen_002.png\n");
}

TEST_F(ZipArchive, OfASecondTimeHasNoEntryOfWhatTheFirstStillPacks) {
    put("screen_001.png");
    const HeldFile first(supportFolder() / "screen_001.png");
    if (!first.isHeld()) {
        GTEST_SKIP() << "the file system cannot hold a file";
    }
    press("compressFolder");
    ASSERT_TRUE(first.waitUntilAsked());
    fs::remove(supportFolder() / "screen_001.png");
    put("screen_002.png");
    const HeldFile second(supportFolder() / "screen_002.png");
    press("compressFolder");
    first.detach();
    ASSERT_TRUE(second.waitUntilAsked());
    // What the first has packed has no part in it.
    EXPECT_EQ(readFile(archive()), kEmptyArchive);
    second.detach();
    waitUntilFilled();
    EXPECT_EQ(entries(), "screen_002.png\n");
    EXPECT_EQ(filesInFolder(), 2);
}

TEST_F(ZipArchive, IsNotMadeAgainWhenItIsDeletedMeanwhile) {
    put("screen_001.png");
    const HeldFile held(supportFolder() / "screen_001.png");
    if (!held.isHeld()) {
        GTEST_SKIP() << "the file system cannot hold a file";
    }
    put("helpdesk.zip", kEmptyArchive);
    tarnix::platform::fillArchiveBeside(archive(), supportFolder());
    ASSERT_TRUE(held.waitUntilAsked());
    fs::remove(archive());
    held.detach();
    tarnix::platform::finishArchives();
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(ZipArchive, TakesThePlaceOfOneThatHasEntries) {
    put("screen_001.png");
    press("compressFolder");
    waitUntilFilled();
    fs::remove(supportFolder() / "screen_001.png");
    put("screen_002.png");
    tarnix::platform::fillArchiveBeside(archive(), supportFolder());
    tarnix::platform::finishArchives();
    EXPECT_EQ(entries(), "screen_002.png\n");
}

TEST_F(ZipArchive, LeavesOutWhatALinkLeadsTo) {
    writeFile(session->folder() / "outside", "x");
    fs::create_symlink(session->folder() / "outside", supportFolder() / "link");
    put("screen_001.png");
    press("compressFolder");
    waitUntilFilled();
    EXPECT_EQ(entries(), "screen_001.png\n");
}

TEST_F(ZipArchive, IsTheEmptyRecordUntilItIsWhole) {
    put("screen_001.png", std::string(100'000, 'p'));
    put("screen_002.png", std::string(100'000, 'q'));
    const HeldFile last(lastFile());
    if (!last.isHeld()) {
        GTEST_SKIP() << "the file system cannot hold a file";
    }
    press("compressFolder");
    ASSERT_TRUE(last.waitUntilAsked());
    EXPECT_EQ(readFile(archive()), kEmptyArchive);
    last.detach();
    // What is not the record any more is the whole archive at once.
    waitUntilFilled();
    EXPECT_EQ(outputOf("unzip -tqq '" + archive() + "' 2>&1"), "");
    EXPECT_EQ(entries(), "screen_001.png\nscreen_002.png\n");
}

TEST_F(ZipArchive, OfAnEmptyFolderStaysTheEmptyRecord) {
    tarnix::createEmptyZip(supportFolderText() + "helpdesk.zip");
    tarnix::platform::fillArchiveBeside(archive(), supportFolder());
    tarnix::platform::finishArchives();
    EXPECT_EQ(readFile(archive()), kEmptyArchive);
}

TEST_F(ZipArchive, HoldsTheFilesOfSubfoldersBelowTheirNames) {
    fs::create_directory(supportFolder() / "sub");
    put("sub/a.txt", "text");
    put("b.txt");
    press("compressFolder");
    waitUntilFilled();
    EXPECT_EQ(entries(), "b.txt\nsub/a.txt\n");
}

TEST_F(ZipArchive, IsWaitedForOneSecond) {
    press("compressFolder");
    EXPECT_EQ(host::system_overrides::sleeps(), std::vector<int>{1000});
}

}  // namespace
}  // namespace test_support
