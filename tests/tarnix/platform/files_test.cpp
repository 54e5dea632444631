#include "tarnix/platform/files.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace tarnix::platform {
namespace {

class Files : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
};

TEST_F(Files, CanReadAFileThatIsThere) {
    folder.write("settings.xml", "");
    EXPECT_TRUE(canRead(folder.windows("settings.xml")));
}

TEST_F(Files, CannotReadWhatIsNotThere) {
    EXPECT_FALSE(canRead(folder.windows("settings.xml")));
    EXPECT_FALSE(canRead(folder.windows("missing/settings.xml")));
}

TEST_F(Files, CannotReadAFolder) {
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_FALSE(canRead(folder.windows("folder")));
}

TEST_F(Files, DeletedFileIsGone) {
    folder.write("old.csv", "x");
    EXPECT_TRUE(deleteFile(folder.windows("old.csv")));
    EXPECT_FALSE(folder.has("old.csv"));
}

TEST_F(Files, DeletingWhatIsNotThereFails) { EXPECT_FALSE(deleteFile(folder.windows("old.csv"))); }

TEST_F(Files, ReadOnlyOnesAreNotDeleted) {
    const std::filesystem::path file = folder.write("old.csv", "x");
    std::filesystem::permissions(file, std::filesystem::perms::owner_read);
    EXPECT_FALSE(deleteFile(folder.windows("old.csv")));
    EXPECT_EQ(folder.read("old.csv"), "x");
    std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

TEST_F(Files, FoldersAreNotDeletedAsFiles) {
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_FALSE(deleteFile(folder.windows("folder")));
    EXPECT_TRUE(folder.has("folder"));
}

}  // namespace
}  // namespace tarnix::platform
