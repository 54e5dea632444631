#include "tests/host/ui/host_test.h"

#include "host/session/dialog_answers.h"

namespace host {
namespace {

using namespace adsk::core;
using Files = std::vector<std::string>;

class FileDialogs : public HostTest {
protected:
    Ptr<FileDialog> dialog = ui()->createFileDialog();
};

TEST_F(FileDialogs, KeepsItsSettings) {
    dialog->title("Open");
    dialog->filter("Text (*.txt)");
    dialog->filterIndex(2);
    dialog->isMultiSelectEnabled(true);

    EXPECT_EQ(dialog->title(), "Open");
    EXPECT_EQ(dialog->filter(), "Text (*.txt)");
    EXPECT_EQ(dialog->filterIndex(), 2);
    EXPECT_TRUE(dialog->isMultiSelectEnabled());
}

TEST_F(FileDialogs, IsClosedWithoutAFileWhenUnanswered) {
    EXPECT_EQ(dialog->showOpen(), DialogCancel);
    EXPECT_EQ(dialog->filenames(), Files());
    EXPECT_EQ(dialog->filename(), "");
}

TEST_F(FileDialogs, ReturnsTheFilesThatTheUserPicks) {
    dialog->isMultiSelectEnabled(true);
    answerNextFileDialog(Files{"/a", "/b"});

    EXPECT_EQ(dialog->showOpen(), DialogOK);
    EXPECT_EQ(dialog->filenames(), (Files{"/a", "/b"}));
    EXPECT_EQ(dialog->filename(), "/a");
}

TEST_F(FileDialogs, AreAnsweredInOrderAndThenByTheCallback) {
    answerNextFileDialog(Files{"/first"});
    answerNextFileDialog(std::nullopt);
    askForFiles([](const FileDialogShown& shown) { return Files{"/" + shown.title}; });
    dialog->title("asked");

    EXPECT_EQ(dialog->showOpen(), DialogOK);
    EXPECT_EQ(dialog->filename(), "/first");
    EXPECT_EQ(dialog->showOpen(), DialogCancel);
    EXPECT_EQ(dialog->showOpen(), DialogOK);
    EXPECT_EQ(dialog->filename(), "/asked");
}

TEST_F(FileDialogs, AreKeptAsTheyWereShown) {
    dialog->title("One");
    answerNextFileDialog(Files{"/a"});
    dialog->showOpen();
    dialog->title("Two");
    dialog->showOpen();

    EXPECT_EQ(fileDialogs(), (std::vector<FileDialogShown>{{"One", "", 0, false, Files{"/a"}},
                                                           {"Two", "", 0, false, std::nullopt}}));
}

TEST_F(FileDialogs, SeveralFilesForADialogThatTakesOneAreReported) {
    answerNextFileDialog(Files{"/a", "/b"});

    dialog->showOpen();

    EXPECT_EQ(dialog->filenames(), Files{"/a"});
    EXPECT_EQ(
        misuses(),
        (std::vector<Misuse>{{.operation = "FileDialog::showOpen",
                              .text = "several files were picked in a dialog that takes one"}}));
}

TEST_F(FileDialogs, OfAnEarlierHostAreForgotten) {
    answerNextFileDialog(Files{"/a"});
    dialog->showOpen();
    answerNextFileDialog(Files{"/b"});
    startHost();

    EXPECT_EQ(fileDialogs().size(), 0U);
    EXPECT_EQ(ui()->createFileDialog()->showOpen(), DialogCancel);
}

}  // namespace
}  // namespace host
