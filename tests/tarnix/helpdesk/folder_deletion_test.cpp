#include "tarnix/helpdesk/folder_deletion.h"

#include "tests/support/temporary_folder.h"
#include "tests/tarnix/platform/test_system.h"

#include <gtest/gtest.h>

#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace tarnix {
namespace {

/// A folder "full" in a folder, deleted as the command deletes.
class FolderDeletion : public testing::Test {
protected:
    FolderDeletion() { fs::create_directory(path()); }

    [[nodiscard]] fs::path path() const { return folder.path() / "full"; }

    bool remove() {
        const std::string text = folder.windows("full") + "\\";
        return deleteDirectoryTree({text.begin(), text.end()});
    }

    void write(const std::string& name) const { folder.write("full/" + name, "x"); }
    [[nodiscard]] bool has(const std::string& name) const { return folder.has("full/" + name); }

    /// A file whose full name has this many units.
    [[nodiscard]] fs::path fileOfLength(std::size_t units) const {
        const std::string name(units - folder.windows("full/").size(), 'n');
        const fs::path file = test::longPath(path() / name);
        std::ofstream(file) << "x";
        return file;
    }

    test_support::TemporaryFolder folder;
};

TEST_F(FolderDeletion, TakesTheFilesAndTheFolder) {
    write("a.png");
    write("b.txt");
    EXPECT_TRUE(remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(FolderDeletion, TakesAnEmptyFolder) {
    EXPECT_TRUE(remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(FolderDeletion, FailsForAFolderThatIsNotThere) {
    fs::remove(path());
    EXPECT_FALSE(remove());
}

TEST_F(FolderDeletion, TakesAReadOnlyFile) {
    write("screen_001.png");
    fs::permissions(path() / "screen_001.png", fs::perms::owner_read);
    EXPECT_TRUE(remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(FolderDeletion, TakesAnEmptySubfolder) {
    write("a");
    fs::create_directory(path() / "sub");
    write("z");
    EXPECT_TRUE(remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(FolderDeletion, EndsAtASubfolderWithContent) {
    write("a");
    fs::create_directory(path() / "sub");
    write("sub/inner");
    write("z");
    EXPECT_FALSE(remove());
    EXPECT_FALSE(has("a"));
    EXPECT_TRUE(has("sub/inner"));
    EXPECT_TRUE(has("z"));
}

TEST_F(FolderDeletion, EndsAtASubfolderBeforeAnUnderscore) {
    // In capitals "S" comes before "_".
    write("helpdesk.zip");
    write("screens/x");
    write("screen_001.png");
    write("SystemInfo.txt");
    EXPECT_FALSE(remove());
    EXPECT_FALSE(has("helpdesk.zip"));
    EXPECT_TRUE(has("screens/x"));
    EXPECT_TRUE(has("screen_001.png"));
    EXPECT_TRUE(has("SystemInfo.txt"));
}

TEST_F(FolderDeletion, EndsAtASubfolderWhoseNameAnotherOneBeginsWith) {
    // The search in the subfolder's name finds "subject" too, and takes it for a part of it.
    fs::create_directory(path() / "sub");
    write("subject");
    EXPECT_FALSE(remove());
    EXPECT_TRUE(has("sub"));
    EXPECT_TRUE(has("subject"));
}

TEST_F(FolderDeletion, EndsAtALockedFile) {
    write("screen_001.png");
    const auto locked = test::holdUndeletable(path() / "screen_001.png");
    if (locked == nullptr) {
        GTEST_SKIP() << "the system deletes the file all the same";
    }
    write("screen_002.png");
    EXPECT_FALSE(remove());
    EXPECT_TRUE(has("screen_001.png"));
}

TEST_F(FolderDeletion, TakesAFileWithAFullNameOf259Units) {
    const fs::path file = fileOfLength(259);
    ASSERT_TRUE(fs::exists(file));
    EXPECT_TRUE(remove());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(FolderDeletion, EndsAtAFileWithAFullNameOf260Units) {
    write("a");
    const fs::path file = fileOfLength(260);
    ASSERT_TRUE(fs::exists(file));
    write("z");
    EXPECT_FALSE(remove());
    EXPECT_FALSE(has("a"));
    EXPECT_TRUE(fs::exists(file));
    EXPECT_TRUE(has("z"));
    fs::remove(file);
}

}  // namespace
}  // namespace tarnix
