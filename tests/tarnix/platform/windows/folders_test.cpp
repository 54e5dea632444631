#include "tarnix/platform/folders.h"
#include "tests/support/temporary_folder.h"
#include "tests/tarnix/platform/windows/folder_link.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace tarnix::platform {
namespace {

/// A link to a folder; skipped where there can be none.
class LinkedFolder : public testing::Test {
protected:
    void SetUp() override {
        other.write("kept", "x");
        if (!test_support::linkFolder(other.path(), folder.path() / "link")) {
            GTEST_SKIP() << "this system makes no link to a folder for this user";
        }
    }

    [[nodiscard]] std::u16string wide(const std::u16string& name) const {
        const std::u16string path = folder.path().u16string();
        return path + u"\\" + name;
    }

    /// The first entry of a folder besides "." and "..".
    static std::optional<FoundFile> firstEntry(const std::u16string& pattern) {
        FolderSearch search(pattern);
        static_cast<void>(search.next());
        return search.next();
    }

    test_support::TemporaryFolder folder;
    test_support::TemporaryFolder other;
};

TEST_F(LinkedFolder, IsRemovedAsAFolderAndItsTargetStays) {
    const auto found = firstEntry(wide(u"*"));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"link");
    EXPECT_TRUE(found->isDirectory);
    EXPECT_FALSE(deleteFile(wide(u"link")));
    EXPECT_TRUE(removeDirectory(wide(u"link\\")));
    EXPECT_EQ(folder.count(), 0);
    EXPECT_EQ(other.read("kept"), "x");
}

TEST_F(LinkedFolder, IsSearchedAsTheFolder) {
    const auto found = firstEntry(wide(u"link\\*"));
    ASSERT_TRUE(found);
    EXPECT_EQ(found->name, u"kept");
}

}  // namespace
}  // namespace tarnix::platform
