#include "host/base/owned_folder.h"

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <memory>
#include <system_error>

namespace fs = std::filesystem;
using host::FolderLock;
using host::OwnedFolder;

namespace {

class OwnedFolders : public testing::Test {
protected:
    std::unique_ptr<OwnedFolder> make() {
        return OwnedFolder::make(place.path(), {.prefix = ".", .suffix = ".kind"}, error);
    }

    test_support::TemporaryFolder place;
    std::error_code error;
};

}  // namespace

TEST_F(OwnedFolders, AreNamedAfterTheirKindAndGoWithAllTheyHold) {
    std::unique_ptr<OwnedFolder> folder = make();
    ASSERT_TRUE(folder) << error.message();
    const fs::path path = folder->path();
    EXPECT_EQ(path.parent_path(), place.path());
    EXPECT_EQ(path.filename().string().size(), 15U);  // a dot, nine digits and ".kind"
    EXPECT_TRUE(path.filename().string().ends_with(".kind"));
    test_support::writeFile(path / "file", "text");

    folder.reset();

    EXPECT_TRUE(fs::is_empty(place.path()));
}

TEST_F(OwnedFolders, AreLockedWhileTheyLive) {
    const std::unique_ptr<OwnedFolder> folder = make();
    const std::unique_ptr<OwnedFolder> other = make();

    EXPECT_FALSE(FolderLock::take(folder->path()));
    EXPECT_TRUE(fs::exists(folder->path()));
}

TEST_F(OwnedFolders, ThatNobodyHasLockedAreRemoved) {
    fs::create_directories(place.path() / ".123456789.kind" / "in");

    make();

    EXPECT_TRUE(fs::is_empty(place.path()));
}

TEST_F(OwnedFolders, OfAnotherKindStay) {
    for (const char* name : {".12345678.kind", ".1234567890.kind", ".12345678x.kind", "123456789",
                             ".123456789.kinds", "x.123456789.kind"}) {
        fs::create_directory(place.path() / name);
    }
    test_support::writeFile(place.path() / ".123456789.kind", "a file");

    make();

    EXPECT_EQ(std::distance(fs::directory_iterator(place.path()), {}), 7);
}

TEST_F(OwnedFolders, AreNotMadeInAFolderThatIsMissing) {
    EXPECT_FALSE(OwnedFolder::make(place.path() / "missing", {}, error));
    EXPECT_EQ(error, std::errc::no_such_file_or_directory);
}
