#include "tarnix/platform/folders.h"
#include "tests/support/temporary_folder.h"

#include <sys/stat.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

namespace fs = std::filesystem;

namespace tarnix::platform {
namespace {

/// What only this system's folders can hold.
class PosixFolders : public testing::Test {
protected:
    ~PosixFolders() override { ::setenv("TMPDIR", temporary.c_str(), 1); }

    [[nodiscard]] std::u16string wide(const std::u16string& name) const {
        const std::string text = folder.windows("");
        return std::u16string(text.begin(), text.end()) + name;
    }

    /// The only entry besides "." and "..".
    [[nodiscard]] std::optional<FoundFile> onlyEntry() const {
        FolderSearch search(wide(u"*"));
        static_cast<void>(search.next());
        return search.next();
    }

    static std::string environment(const char* name) {
        const char* const value = std::getenv(name);
        return value != nullptr ? value : "/tmp";
    }

    const std::string temporary = environment("TMPDIR");
    test_support::TemporaryFolder folder;
};

TEST_F(PosixFolders, ANameWithABackslashIsNotAPathToAnotherFolder) {
    fs::create_directory(folder.path() / "sub");
    folder.write("outside", "");
    folder.write("sub/..\\outside", "");
    FolderSearch search(wide(u"sub\\*"));
    static_cast<void>(search.next());
    const auto found = search.next();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"..\uF05Coutside");
    EXPECT_TRUE(deleteFile(wide(u"sub\\") + found->name));
    EXPECT_TRUE(folder.has("outside"));
    EXPECT_TRUE(fs::is_empty(folder.path() / "sub"));
}

TEST_F(PosixFolders, ANameOfBytesThatAreNotTextIsUnderstoodOnTheWayBack) {
    folder.write("caf\xE9", "");
    const auto found = onlyEntry();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, std::u16string(u"caf") + char16_t(0xDCE9));
    EXPECT_TRUE(deleteFile(wide(found->name)));
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(PosixFolders, ANameBeyondSixteenBitsIsUnderstoodOnTheWayBack) {
    folder.write("\xF0\x9F\x94\xA9\xE2\x82\xAC\xC3\xA9", "");
    const auto found = onlyEntry();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"\U0001F529\u20AC\u00E9");
    EXPECT_TRUE(deleteFile(wide(found->name)));
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(PosixFolders, ALinkToAFolderIsRemovedAsAFolderAndItsTargetStays) {
    const test_support::TemporaryFolder other;
    other.write("kept", "x");
    fs::create_directory_symlink(other.path(), folder.path() / "link");
    const auto found = onlyEntry();
    ASSERT_TRUE(found);
    EXPECT_TRUE(found->isDirectory);
    EXPECT_FALSE(deleteFile(wide(found->name)));
    EXPECT_TRUE(removeDirectory(wide(found->name + u"\\")));
    EXPECT_EQ(folder.count(), 0);
    EXPECT_EQ(other.read("kept"), "x");
}

TEST_F(PosixFolders, ALinkToAFileIsDeletedAsAFileAndItsTargetStays) {
    const test_support::TemporaryFolder other;
    other.write("kept", "x");
    fs::create_symlink(other.path() / "kept", folder.path() / "link");
    const auto found = onlyEntry();
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->isDirectory);
    EXPECT_FALSE(removeDirectory(wide(found->name)));
    EXPECT_TRUE(deleteFile(wide(found->name)));
    EXPECT_EQ(other.read("kept"), "x");
}

TEST_F(PosixFolders, ALinkToNothingIsDeletedAsAFile) {
    fs::create_symlink(folder.path() / "missing", folder.path() / "link");
    const auto found = onlyEntry();
    ASSERT_TRUE(found);
    EXPECT_FALSE(found->isDirectory);
    EXPECT_TRUE(deleteFile(wide(found->name)));
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(PosixFolders, AFolderReachedThroughALinkIsSearched) {
    const test_support::TemporaryFolder other;
    other.write("there", "x");
    fs::create_directory_symlink(other.path(), folder.path() / "link");
    FolderSearch search(wide(u"link\\*"));
    ASSERT_TRUE(search);
    static_cast<void>(search.next());
    const auto found = search.next();
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"there");
}

TEST_F(PosixFolders, TheTargetOfALinkIsNotMadeWritable) {
    folder.write("target", "");
    ::chmod((folder.path() / "target").c_str(), 0400);
    fs::create_symlink(folder.path() / "target", folder.path() / "link");
    makeWritable(folder.windows("link"));
    struct stat state = {};
    ASSERT_EQ(::stat((folder.path() / "target").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0400U);
}

TEST_F(PosixFolders, TheOneForTemporaryFilesIsThatOfTheEnvironment) {
    ::setenv("TMPDIR", "/a/b\xC3\xA9", 1);
    EXPECT_EQ(temporaryFolder(), u"\\a\\b\u00E9\\");
    ::setenv("TMPDIR", "", 1);
    EXPECT_EQ(temporaryFolder(), u"\\tmp\\");
}

TEST_F(PosixFolders, TheOneForTemporaryFilesFitsIntoTwoHundredSixtyUnits) {
    ::setenv("TMPDIR", ("/" + std::string(257, 'a')).c_str(), 1);
    EXPECT_EQ(temporaryFolder(), u"\\" + std::u16string(257, u'a') + u"\\");
    ::setenv("TMPDIR", ("/" + std::string(258, 'a')).c_str(), 1);
    EXPECT_EQ(temporaryFolder(), u"");
}

TEST_F(PosixFolders, AreMadeForTheirOwnerAlone) {
    ASSERT_TRUE(makeDirectory(folder.windows("sub")));
    struct stat state = {};
    ASSERT_EQ(::stat((folder.path() / "sub").c_str(), &state), 0);
    EXPECT_EQ(state.st_mode & 0777, 0700U);
}

}  // namespace
}  // namespace tarnix::platform
