#include "tarnix/helpdesk/folder_deletion.h"

#include "tests/support/temporary_folder.h"
#include "tests/tarnix/platform/test_system.h"
#include "tests/tarnix/platform/windows/folder_link.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarnix {
namespace {

TEST(FolderDeletionOfWindows, KeepsALockedFileAndWhatComesAfterIt) {
    const test_support::TemporaryFolder folder;
    folder.write("screen_001.png", "x");
    folder.write("screen_002.png", "x");
    folder.write("screen_003.png", "x");
    const auto locked = test::holdUndeletable(folder.path() / "screen_002.png");
    ASSERT_NE(locked, nullptr);
    const std::string path = folder.windows("");
    EXPECT_FALSE(deleteDirectoryTree({path.begin(), path.end()}));
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"screen_002.png", "screen_003.png"}));
}

TEST(FolderDeletionOfWindows, RemovesALinkToAFolderAndNotWhatItLeadsTo) {
    const test_support::TemporaryFolder other;
    other.write("kept", "x");
    const test_support::TemporaryFolder folder;
    if (!test_support::linkFolder(other.path(), folder.path() / "link")) {
        GTEST_SKIP() << "this system makes no link to a folder for this user";
    }
    const std::string path = folder.windows("");
    EXPECT_TRUE(deleteDirectoryTree({path.begin(), path.end()}));
    EXPECT_FALSE(folder.has("link"));
    EXPECT_EQ(other.read("kept"), "x");
}

}  // namespace
}  // namespace tarnix
