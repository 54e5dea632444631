#include "host/ui/dialogs/file_dialog_object.h"

#include "host/base/host_state.h"

namespace host::ui {
namespace {

/// The answer that waits for the dialog, else that of the function to ask.
PickedFiles answerOf(const FileDialogShown& dialog, FileDialogLog& log) {
    if (!log.answers.empty()) {
        PickedFiles answer = log.answers.front();
        log.answers.pop_front();
        return answer;
    }
    if (!log.ask) return std::nullopt;
    const gate::Outside outside;
    return log.ask(dialog);
}

}  // namespace

core::DialogResults FileDialogObject::showOpen() {
    if (closed<"showOpen">(*this)) return {};
    auto* log = HostState::currentPart<FileDialogLog>();
    if (log == nullptr) return core::DialogCancel;
    state_.picked = answerOf(state_, *log);
    if (state_.picked && state_.picked->size() > 1 && !state_.multiSelect) {
        misuse("FileDialog::showOpen", "several files were picked in a dialog that takes one");
        state_.picked->resize(1);
    }
    log->shown.push_back(state_);
    return state_.picked ? core::DialogOK : core::DialogCancel;
}

std::vector<std::string> FileDialogObject::filenames() const {
    if (closed<"filenames">(*this)) return {};
    return state_.picked.value_or(std::vector<std::string>());
}

std::string FileDialogObject::filename() const {
    if (closed<"filename">(*this)) return {};
    return state_.picked && !state_.picked->empty() ? state_.picked->front() : "";
}

}  // namespace host::ui
