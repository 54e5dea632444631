#include "tarnix/platform/folders.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace tarnix::platform {
namespace {

class Folders : public testing::Test {
protected:
    /// A name in the folder as 16-bit text; the folder has a name in ASCII.
    [[nodiscard]] std::u16string wide(const std::string& name) const {
        const std::string text = folder.windows(name);
        return {text.begin(), text.end()};
    }

    /// All that a search has after its first entry, with "/" after folders and "!" after what is
    /// read-only; "nothing" where it has no first entry.
    [[nodiscard]] std::string found(const std::string& pattern) const {
        FolderSearch search(wide(pattern));
        if (!search) {
            return "nothing";
        }
        std::string names;
        while (const auto file = search.next()) {
            names += (names.empty() ? "" : " ") + std::string(file->name.begin(), file->name.end());
            names += file->isDirectory ? "/" : file->isReadOnly ? "!" : "";
        }
        EXPECT_TRUE(search.isComplete());
        return names;
    }

    /// The names that a search has after its first entry.
    [[nodiscard]] std::vector<std::u16string> wideFound(const std::u16string& pattern) const {
        FolderSearch search(wide("") + pattern);
        std::vector<std::u16string> names;
        for (auto file = search.next(); file; file = search.next()) {
            names.push_back(file->name);
        }
        return names;
    }

    void makeReadOnly(const std::string& name) const {
        fs::permissions(folder.path() / name, fs::perms::owner_read);
    }

    test_support::TemporaryFolder folder;
};

TEST_F(Folders, ThatForTemporaryFilesEndsInABackslash) {
    const auto temporary = temporaryFolder();
    ASSERT_TRUE(temporary);
    EXPECT_TRUE(temporary->ends_with(u"\\"));
    EXPECT_TRUE(directoryExists(std::string(temporary->begin(), temporary->end())));
}

TEST_F(Folders, ExistWithAndWithoutABackslashAtTheEnd) {
    EXPECT_TRUE(directoryExists(folder.windows("")));
    fs::create_directory(folder.path() / "sub");
    EXPECT_TRUE(directoryExists(folder.windows("sub")));
}

TEST_F(Folders, AreNeitherFilesNorWhatIsNotThere) {
    folder.write("file", "");
    EXPECT_FALSE(directoryExists(folder.windows("file")));
    EXPECT_FALSE(directoryExists(folder.windows("missing")));
    EXPECT_FALSE(directoryExists(""));
}

TEST_F(Folders, AreMadeOneAtATime) {
    EXPECT_TRUE(makeDirectory(folder.windows("sub/")));
    EXPECT_TRUE(folder.has("sub"));
    EXPECT_FALSE(makeDirectory(folder.windows("sub")));
    EXPECT_FALSE(makeDirectory(folder.windows("other/sub")));
    EXPECT_FALSE(folder.has("other"));
}

TEST_F(Folders, AreRemovedOnlyWhenTheyAreEmpty) {
    fs::create_directory(folder.path() / "sub");
    folder.write("sub/file", "");
    EXPECT_FALSE(removeDirectory(wide("sub/")));
    fs::remove(folder.path() / "sub" / "file");
    EXPECT_TRUE(removeDirectory(wide("sub/")));
    EXPECT_FALSE(folder.has("sub"));
    EXPECT_FALSE(removeDirectory(wide("sub")));
    EXPECT_FALSE(removeDirectory(u""));
}

TEST_F(Folders, LoseAReadOnlyFileOnceItIsWritable) {
    folder.write("file", "");
    makeReadOnly("file");
    EXPECT_FALSE(deleteFile(wide("file")));
    makeWritable(folder.windows("file"));
    EXPECT_TRUE(deleteFile(wide("file")));
    EXPECT_FALSE(folder.has("file"));
}

TEST_F(Folders, AreNotDeletedAsFiles) {
    fs::create_directory(folder.path() / "sub");
    EXPECT_FALSE(deleteFile(wide("sub")));
    EXPECT_TRUE(folder.has("sub"));
}

TEST_F(Folders, AreSearchedInTheOrderOfNamesWithSmallLettersAsLargeOnes) {
    fs::create_directory(folder.path() / "b");
    folder.write("A", "");
    folder.write("c", "");
    makeReadOnly("c");
    folder.write("D", "");
    EXPECT_EQ(found("*"), "../ A b/ c! D");
    makeWritable(folder.windows("c"));
}

TEST_F(Folders, AreSearchedInTheOrderOfNamesInCapitals) {
    // After "Z" come "[", "^", "_"; before "A" the digits, and before these "-".
    for (const char* const name : {"_b", "^c", "[d", "za", "Ye", "0f", "9g", "-h"}) {
        folder.write(name, "");
    }
    EXPECT_EQ(found("*"), "../ -h 0f 9g Ye za [d ^c _b");
}

TEST_F(Folders, AreSearchedWithAnUnderscoreAfterTheLetters) {
    fs::create_directory(folder.path() / "screens");
    folder.write("screen_001.png", "");
    folder.write("helpdesk.zip", "");
    folder.write("SystemInfo.txt", "");
    EXPECT_EQ(found("*"), "../ helpdesk.zip screens/ screen_001.png SystemInfo.txt");
}

TEST_F(Folders, AreSearchedWithLettersBeyondAsciiInCapitals) {
    // In capitals C8 E9 -> C9, 10D -> 10C, 44F -> 42F. The dotless i and the micro sign stay.
    const std::u16string names[] = {u"\u00C8", u"\u00E9", u"\u010D",  u"\u0131",
                                    u"\u044F", u"\u00B5", u"\u0416x", u"z"};
    for (const std::u16string& name : names) {
        folder.write(fs::path(name), "");
    }
    EXPECT_EQ(wideFound(u"*"),
              (std::vector<std::u16string>{u"..", u"z", u"\u00B5", u"\u00C8", u"\u00E9", u"\u010D",
                                           u"\u0131", u"\u0416x", u"\u044F"}));
}

TEST_F(Folders, AreSearchedForALetterBeyondAsciiInEitherCase) {
    folder.write(fs::path(u"\u010Da"), "");
    folder.write(fs::path(u"\u010CB"), "");
    EXPECT_EQ(wideFound(u"\u010C*"), std::vector<std::u16string>{u"\u010CB"});
}

TEST_F(Folders, AreSearchedForTheBeginningOfANameWithoutTheFirst) {
    fs::create_directory(folder.path() / "sub");
    folder.write("Sub2", "");
    folder.write("other", "");
    EXPECT_EQ(found("sub*"), "Sub2");
    EXPECT_EQ(found("other*"), "");
}

TEST_F(Folders, HaveNothingWhereNoNameFits) {
    EXPECT_EQ(found("missing*"), "nothing");
    EXPECT_EQ(found("missing/*"), "nothing");
}

TEST_F(Folders, ThatAreEmptyHaveTheirTwoOwnEntries) { EXPECT_EQ(found("*"), "../"); }

}  // namespace
}  // namespace tarnix::platform
