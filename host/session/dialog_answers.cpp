#include "host/session/dialog_answers.h"

#include "host/base/host_state.h"

#include <utility>

namespace host {
namespace {

ui::MessageLog& messageLog() { return HostState::required().part<ui::MessageLog>(); }

ui::FileDialogLog& fileDialogLog() { return HostState::required().part<ui::FileDialogLog>(); }

}  // namespace

const std::vector<Message>& messages() { return messageLog().shown; }

void clearMessages() { messageLog().shown.clear(); }

void answerNextMessage(adsk::core::DialogResults answer) { messageLog().answers.push_back(answer); }

void askForAnswers(std::function<adsk::core::DialogResults(const Message&)> ask) {
    messageLog().ask = std::move(ask);
}

const std::vector<FileDialogShown>& fileDialogs() { return fileDialogLog().shown; }

void answerNextFileDialog(PickedFiles files) {
    fileDialogLog().answers.push_back(std::move(files));
}

void askForFiles(std::function<PickedFiles(const FileDialogShown&)> ask) {
    fileDialogLog().ask = std::move(ask);
}

std::optional<Progress> progressDialog() {
    const ui::ProgressDialogObject* dialog = ui::newestProgressDialog();
    return dialog == nullptr ? std::nullopt : std::optional(dialog->seen());
}

void cancelProgress() {
    ui::ProgressDialogObject* dialog = ui::newestProgressDialog();
    if (dialog == nullptr) {
        throw MisuseError("nothing is in progress that could be cancelled");
    }
    if (!dialog->hasCancelButton()) {
        throw MisuseError("what is in progress has no button to cancel it");
    }
    dialog->cancel();
}

}  // namespace host
