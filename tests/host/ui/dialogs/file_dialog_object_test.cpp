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

    EXPECT_EQ(fileDialogs(),
              (std::vector<FileDialogShown>{
                  {"One", "", 0, false, Files{"/a"}, FileDialogKind::Open, "", ""},
                  {"Two", "", 0, false, std::nullopt, FileDialogKind::Open, "", ""}}));
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

// FileDialog_showSave: one file, which need not exist.
TEST_F(FileDialogs, AskWhereToSave) {
    dialog->isMultiSelectEnabled(true);
    dialog->initialDirectory("/work in progress");
    dialog->initialFilename("list.csv");
    answerNextFileDialog(Files{"/new.csv", "/second.csv"});

    EXPECT_EQ(dialog->showSave(), DialogOK);

    EXPECT_EQ(dialog->filename(), "/new.csv");
    EXPECT_EQ(fileDialogs()[0].kind, FileDialogKind::Save);
    EXPECT_EQ(fileDialogs()[0].initialFilename, "list.csv");
    EXPECT_EQ(misused(), "FileDialog::showSave");
}

// FolderDialog.
TEST_F(FileDialogs, AskForAFolder) {
    const Ptr<FolderDialog> folders = ui()->createFolderDialog();
    folders->title("Where to?");
    folders->initialDirectory("/home");
    EXPECT_EQ(folders->showDialog(), DialogCancel);
    EXPECT_EQ(folders->folder(), "");
    answerNextFileDialog(Files{"/target"});

    EXPECT_EQ(folders->showDialog(), DialogOK);

    EXPECT_EQ(folders->folder(), "/target");
    EXPECT_EQ(fileDialogs()[1].kind, FileDialogKind::Folder);
    EXPECT_EQ(fileDialogs()[1].title, "Where to?");
    EXPECT_EQ(fileDialogs()[1].initialDirectory, "/home");
}

}  // namespace
}  // namespace host
