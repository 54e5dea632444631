#include "tarnix/platform/text_file.h"

#include "tests/tarnix/platform/scratch_folder.h"

#include <gtest/gtest.h>

namespace tarnix::platform {
namespace {

class NewText : public testing::Test {
protected:
    ScratchFolder folder;
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

}  // namespace
}  // namespace tarnix::platform
