#include "tarnix/platform/text_file.h"

#include "tarnix/platform/files.h"
#include "tests/support/temporary_folder.h"
#include "tests/tarnix/platform/test_system.h"

#include <gtest/gtest.h>

namespace tarnix::platform {
namespace {

class NewText : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
    TextFile file;
};

TEST_F(NewText, LinesEndInCarriageReturnAndLineFeed) {
    file.open(folder.windows("info.txt"));
    file.write("one \n\ntwo");
    file.write("\n");
    file.close();
    EXPECT_EQ(folder.read("info.txt"), "one \r\n\r\ntwo\r\n");
}

TEST_F(NewText, TakesThePlaceOfTheOld) {
    folder.write("info.txt", "what was there before");
    file.open(folder.windows("info.txt"));
    file.write("new\n");
    file.close();
    EXPECT_EQ(folder.read("info.txt"), "new\r\n");
}

TEST_F(NewText, IsDiscardedByAFileThatDoesNotOpen) {
    file.open(folder.windows("missing/info.txt"));
    EXPECT_NO_THROW(file.write("line\n"));
    EXPECT_NO_THROW(file.close());
    EXPECT_EQ(folder.count(), 0);
}

TEST_F(NewText, IsWrittenAgainAfterAFileThatDidNotOpen) {
    file.open(folder.windows("missing/info.txt"));
    file.write("line\n");
    file.close();
    file.open(folder.windows("info.txt"));
    file.write("line\n");
    file.close();
    EXPECT_EQ(folder.read("info.txt"), "line\r\n");
}

class AppendingText : public testing::Test {
protected:
    test_support::TemporaryFolder folder;
    TextFile file;
};

TEST_F(AppendingText, LinesEndInCarriageReturnAndLineFeed) {
    file.openToAppend(folder.windows("list.csv"));
    file.write("Part;");
    file.write("Count;");
    file.endLine();
    file.endLine();
    file.write("end");
    file.close();
    EXPECT_EQ(folder.read("list.csv"), "Part;Count;\r\n\r\nend");
}

TEST_F(AppendingText, LineEndsInsideAStringGetACarriageReturnToo) {
    file.openToAppend(folder.windows("list.csv"));
    file.write("a\nb\r\nc\n\n");
    file.close();
    EXPECT_EQ(folder.read("list.csv"), "a\r\nb\r\r\nc\r\n\r\n");
}

TEST_F(AppendingText, OtherBytesGoOutAsTheyAre) {
    const std::string bytes("\xC3\xB6 \xFF \x1A \0 \t", 10);
    file.openToAppend(folder.windows("list.csv"));
    file.write(bytes);
    file.close();
    EXPECT_EQ(folder.read("list.csv"), bytes);
}

TEST_F(AppendingText, NewTextFollowsTheOld) {
    folder.write("list.csv", "old\r\n");
    file.openToAppend(folder.windows("list.csv"));
    file.write("new");
    file.endLine();
    file.close();
    EXPECT_EQ(folder.read("list.csv"), "old\r\nnew\r\n");
}

TEST_F(AppendingText, FileThatCouldNotBeDeletedGetsTheNewTextAfterTheOld) {
    folder.write("list.csv", "old\r\n");
    {
        const auto kept = test::holdUndeletable(folder.path() / "list.csv");
        if (kept == nullptr) {
            GTEST_SKIP() << "the system deletes the file all the same";
        }
        EXPECT_FALSE(deleteFile(folder.windows("list.csv")));
        file.openToAppend(folder.windows("list.csv"));
        file.write("new");
        file.endLine();
    }
    EXPECT_EQ(folder.read("list.csv"), "old\r\nnew\r\n");
}

TEST_F(AppendingText, EndedLineIsInTheFileWhileItIsOpen) {
    file.openToAppend(folder.windows("list.csv"));
    file.write("line");
    file.endLine();
    EXPECT_EQ(folder.read("list.csv"), "line\r\n");
}

TEST_F(AppendingText, FileThatDoesNotOpenDiscardsWhatIsWritten) {
    file.openToAppend(folder.windows("missing/list.csv"));
    EXPECT_NO_THROW(file.write("line"));
    EXPECT_NO_THROW(file.endLine());
    file.close();
    EXPECT_EQ(folder.count(), 0);
}

}  // namespace
}  // namespace tarnix::platform
