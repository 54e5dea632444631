#include "tarnix/platform/files.h"

#include "tests/tarnix/platform/scratch_folder.h"
#include "tests/tarnix/platform/test_system.h"

#include <gtest/gtest.h>

namespace tarnix::platform {
namespace {

class Files : public testing::Test {
protected:
    ScratchFolder folder;
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

TEST_F(Files, FoldersAreNotDeletedAsFiles) {
    std::filesystem::create_directory(folder.path() / "folder");
    EXPECT_FALSE(deleteFile(folder.windows("folder")));
    EXPECT_TRUE(folder.has("folder"));
}

class AppendingText : public Files {};

TEST_F(AppendingText, LinesEndInCarriageReturnAndLineFeed) {
    {
        AppendingTextFile file(folder.windows("list.csv"));
        file.write("Part;");
        file.write("Count;");
        file.endLine();
        file.endLine();
        file.write("end");
    }
    EXPECT_EQ(folder.read("list.csv"), "Part;Count;\r\n\r\nend");
}

TEST_F(AppendingText, LineEndsInsideAStringGetACarriageReturnToo) {
    {
        AppendingTextFile file(folder.windows("list.csv"));
        file.write("a\nb\r\nc\n\n");
    }
    EXPECT_EQ(folder.read("list.csv"), "a\r\nb\r\r\nc\r\n\r\n");
}

TEST_F(AppendingText, OtherBytesGoOutAsTheyAre) {
    const std::string bytes("\xC3\xB6 \xFF \x1A \0 \t", 10);
    {
        AppendingTextFile file(folder.windows("list.csv"));
        file.write(bytes);
    }
    EXPECT_EQ(folder.read("list.csv"), bytes);
}

TEST_F(AppendingText, NewTextFollowsTheOld) {
    folder.write("list.csv", "old\r\n");
    {
        AppendingTextFile file(folder.windows("list.csv"));
        file.write("new");
        file.endLine();
    }
    EXPECT_EQ(folder.read("list.csv"), "old\r\nnew\r\n");
}

TEST_F(AppendingText, FileThatCouldNotBeDeletedGetsTheNewTextAfterTheOld) {
    folder.write("list.csv", "old\r\n");
    {
        const test::Undeletable kept(folder.path() / "list.csv");
        if (!kept.isEffective()) {
            GTEST_SKIP() << "the system deletes the file all the same";
        }
        EXPECT_FALSE(deleteFile(folder.windows("list.csv")));
        AppendingTextFile file(folder.windows("list.csv"));
        file.write("new");
        file.endLine();
    }
    EXPECT_EQ(folder.read("list.csv"), "old\r\nnew\r\n");
}

TEST_F(AppendingText, EndedLineIsInTheFileWhileItIsOpen) {
    AppendingTextFile file(folder.windows("list.csv"));
    file.write("line");
    file.endLine();
    EXPECT_EQ(folder.read("list.csv"), "line\r\n");
}

TEST_F(AppendingText, FileThatDoesNotOpenDiscardsWhatIsWritten) {
    {
        AppendingTextFile file(folder.windows("missing/list.csv"));
        EXPECT_NO_THROW(file.write("line"));
        EXPECT_NO_THROW(file.endLine());
    }
    EXPECT_EQ(folder.count(), 0);
}

}  // namespace
}  // namespace tarnix::platform
