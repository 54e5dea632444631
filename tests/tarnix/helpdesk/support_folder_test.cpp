#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace test_support {
namespace {

class SupportFolder : public HelpdeskTest {};

TEST_F(SupportFolder, OpenedTwiceIsMadeOnceAndOpenedTwice) {
    press("openFolder");
    EXPECT_TRUE(fs::is_directory(supportFolder()));
    put("screen_001.png");
    press("openFolder");
    EXPECT_TRUE(has("screen_001.png"));
    EXPECT_EQ(session->openedByShell(),
              (std::vector<std::string>{supportFolderText(), supportFolderText()}));
    EXPECT_EQ(host::shell_requests::recordedKinds(),
              (std::vector<StandInTarget>{StandInTarget::Folder, StandInTarget::Folder}));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolder, IsOpenedQuietlyWhereItCannotBeMade) {
    writeFile(supportFolder(), "a file of this name");
    press("openFolder");
    EXPECT_EQ(session->openedByShell(), std::vector<std::string>{supportFolderText()});
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolder, IsGoneWithItsFilesWhenDeletedAfterOpening) {
    press("openFolder");
    put("screen_001.png");
    put("SystemInfo.txt");
    press("clearFolder");
    EXPECT_FALSE(fs::exists(supportFolder()));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolder, LosesAReadOnlyCapture) {
    press("openFolder");
    put("screen_001.png");
    fs::permissions(supportFolder() / "screen_001.png", fs::perms::owner_read);
    press("clearFolder");
    EXPECT_FALSE(fs::exists(supportFolder()));
}

TEST_F(SupportFolder, LosesAnEmptySubfolder) {
    press("openFolder");
    fs::create_directory(supportFolder() / "sub");
    press("clearFolder");
    EXPECT_FALSE(fs::exists(supportFolder()));
}

TEST_F(SupportFolder, LosesOnlyWhatComesBeforeASubfolderWithContent) {
    press("openFolder");
    put("a.png");
    fs::create_directory(supportFolder() / "m");
    put("m/inner.png");
    put("z.png");
    press("clearFolder");
    EXPECT_FALSE(has("a.png"));
    EXPECT_TRUE(has("m/inner.png"));
    EXPECT_TRUE(has("z.png"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolder, NotRememberedLeavesTheWorkingDirectoryToBeCleared) {
    const fs::path work = fs::current_path();
    ASSERT_TRUE(fs::equivalent(work, session->folder() / "work"));
    fs::create_directory(supportFolder());
    put("kept.png");
    writeFile(session->folder() / "beside", "kept");
    writeFile(work / "lost", "x");
    fs::create_directory(work / "sub");
    const std::string before = treeOf(session->folder(), session->folder() / "work");

    press("clearFolder");

    EXPECT_TRUE(fs::is_empty(work));
    EXPECT_EQ(treeOf(session->folder(), session->folder() / "work"), before);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolder, NotRememberedTouchesNothingThatLinksLeadTo) {
    const TemporaryFolder other;
    writeFile(other.path() / "kept", "x");
    std::error_code refused;
    fs::create_directory_symlink(other.path(), fs::current_path() / "link", refused);
    if (refused) {
        GTEST_SKIP() << "the system makes no links here";
    }
    const std::string before = treeOf(other.path(), {});
    press("clearFolder");
    EXPECT_EQ(treeOf(other.path(), {}), before);
}

TEST_F(SupportFolder, OfAnotherSessionIsNotRemembered) {
    press("openFolder");
    restart(addinOptions());
    ASSERT_TRUE(run());
    fs::create_directory(supportFolder());
    press("clearFolder");
    EXPECT_TRUE(fs::exists(supportFolder()));
}

/// The support folder below a folder for temporary files with this name.
class SupportFolderBelow : public HelpdeskTest {
protected:
    ~SupportFolderBelow() override { endSession(); }

    /// Starts over, two levels below the test's folder: what the low bytes of a name
    /// spell may be another folder.
    void restartBelow(const std::u8string& name) {
        endSession();
        below = root.path() / "1" / "2" / fs::path(name);
        fs::create_directories(below);
        for (const auto& variable : host::environment::temporaryFolderNames()) {
            before.push_back(host::environment::variable(variable));
            host::environment::setVariable(variable, below.native());
        }
        host::SessionOptions with = addinOptions();
        with.useUserTempDir = true;
        restart(with);
        ASSERT_TRUE(run());
    }

    void TearDown() override {
        HelpdeskTest::TearDown();
        for (std::size_t i = 0; i < before.size(); ++i) {
            host::environment::setVariable(host::environment::temporaryFolderNames()[i], before[i]);
        }
    }

    TemporaryFolder root;
    fs::path below;
    std::vector<std::optional<host::environment::Text>> before;
};

TEST_F(SupportFolderBelow, ANameBeyondAsciiIsTheFolderThatItsLowBytesSpell) {
    // U+0141 and U+0142 have the low bytes of "A" and "B".
    fs::create_directories(root.path() / "1" / "2" / "AB");
    restartBelow(u8"\u0141\u0142");
    press("openFolder");
    EXPECT_TRUE(fs::is_directory(root.path() / "1" / "2" / "AB" / "Helpdesk"));
    EXPECT_TRUE(fs::is_empty(below));
    press("clearFolder");
    EXPECT_TRUE(fs::is_empty(root.path() / "1" / "2" / "AB"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SupportFolderBelow, ANameThatIsNotUtf8AnyMoreThrowsWhenItIsCleared) {
    restartBelow(u8"\u00E9");
    press("openFolder");
    EXPECT_EQ(uncaughtExceptions(), "");
    press("clearFolder");
    EXPECT_EQ(uncaughtExceptions(), "std::range_error: bad conversion in OnExecute");
}

TEST_F(SupportFolderBelow, AFolderThatIsMissingIsNotMadeWithIt) {
    restartBelow(u8"missing");
    fs::remove(below);
    press("openFolder");
    press("systemInfo");
    press("compressFolder");
    EXPECT_FALSE(fs::exists(below));
    EXPECT_EQ(session->openedByShell().size(), 1U);
    EXPECT_EQ(shownMessages(), "Information (2): Target directory does not exist.\n");
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
