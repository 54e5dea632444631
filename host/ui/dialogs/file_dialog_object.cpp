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

core::DialogResults show(FileDialogShown& dialog, const char* operation) {
    auto* log = HostState::currentPart<FileDialogLog>();
    if (log == nullptr) return core::DialogCancel;
    dialog.picked = answerOf(dialog, *log);
    const bool takesMany = dialog.multiSelect && dialog.kind == FileDialogKind::Open;
    if (dialog.picked && dialog.picked->size() > 1 && !takesMany) {
        misuse(operation, "several files were picked in a dialog that takes one");
        dialog.picked->resize(1);
    }
    log->shown.push_back(dialog);
    return dialog.picked ? core::DialogOK : core::DialogCancel;
}

std::string firstOf(const PickedFiles& picked) {
    return picked && !picked->empty() ? picked->front() : "";
}

}  // namespace

core::DialogResults FileDialogObject::showOpen() {
    if (closed<"showOpen">(*this)) return {};
    state_.kind = FileDialogKind::Open;
    return show(state_, "FileDialog::showOpen");
}

core::DialogResults FileDialogObject::showSave() {
    if (closed<"showSave">(*this)) return {};
    state_.kind = FileDialogKind::Save;
    return show(state_, "FileDialog::showSave");
}

core::DialogResults FolderDialogObject::showDialog() {
    if (closed<"showDialog">(*this)) return {};
    return show(state_, "FolderDialog::showDialog");
}

std::string FolderDialogObject::folder() const {
    if (closed<"folder">(*this)) return {};
    return firstOf(state_.picked);
}

std::vector<std::string> FileDialogObject::filenames() const {
    if (closed<"filenames">(*this)) return {};
    return state_.picked.value_or(std::vector<std::string>());
}

std::string FileDialogObject::filename() const {
    if (closed<"filename">(*this)) return {};
    return firstOf(state_.picked);
}

}  // namespace host::ui
