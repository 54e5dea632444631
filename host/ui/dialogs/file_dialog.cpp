#include "host/ui/dialogs/file_dialog.h"

#include <deque>
#include <utility>

namespace host {
namespace {

struct Screen {
    std::vector<FileDialogShown> shown;
    std::deque<PickedFiles> answers;
    std::function<PickedFiles(const FileDialogShown&)> ask;
};

Screen& screen() {
    static auto* instance = new Screen;
    return *instance;
}

/// Has the dialog answered: by the answer that waits for it, else by whoever is asked.
void answer(FileDialogShown& dialog) {
    Screen& all = screen();
    if (!all.answers.empty()) {
        dialog.picked = all.answers.front();
        all.answers.pop_front();
    } else if (all.ask) {
        const gate::Outside outside;
        dialog.picked = all.ask(dialog);
    } else {
        dialog.picked.reset();
    }
}

}  // namespace

const std::vector<FileDialogShown>& fileDialogs() { return screen().shown; }

void answerNextFileDialog(PickedFiles files) { screen().answers.push_back(std::move(files)); }

void askForFiles(std::function<PickedFiles(const FileDialogShown&)> ask) {
    screen().ask = std::move(ask);
}

namespace ui {

core::DialogResults FileDialogObject::showOpen() {
    if (closed<"FileDialog::showOpen">(*this)) return {};
    answer(state_);
    if (state_.picked && state_.picked->size() > 1 && !state_.multiSelect) {
        misuse("FileDialog::showOpen", "several files were picked in a dialog that takes one");
        state_.picked->resize(1);
    }
    screen().shown.push_back(state_);
    return state_.picked ? core::DialogOK : core::DialogCancel;
}

std::vector<std::string> FileDialogObject::filenames() const {
    if (closed<"FileDialog::filenames">(*this)) return {};
    return state_.picked.value_or(std::vector<std::string>());
}

std::string FileDialogObject::filename() const {
    if (closed<"FileDialog::filename">(*this)) return {};
    return state_.picked && !state_.picked->empty() ? state_.picked->front() : "";
}

void resetFileDialogs() { screen() = {}; }

}  // namespace ui
}  // namespace host
