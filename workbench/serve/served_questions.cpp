#include "workbench/serve/protocol_error.h"
#include "workbench/serve/served_host_parts.h"
#include "workbench/serve/state_json.h"

#include "host/base/utf8_path.h"
#include "host/session/dialog_answers.h"

#include <algorithm>
#include <chrono>
#include <utility>

// What the module shows and waits for: messages, file dialogs, progress.
namespace workbench::serve {
namespace {

constexpr double kProgressInterval = 0.1;  // seconds
constexpr std::chrono::hours kPatience{1};

/// What closing a message without pressing a button answers.
adsk::core::DialogResults closingAnswer(adsk::core::MessageBoxButtonTypes buttons) {
    switch (buttons) {
        case adsk::core::OKButtonType:
            return adsk::core::DialogOK;
        case adsk::core::YesNoButtonType:
            return adsk::core::DialogNo;
        default:
            return adsk::core::DialogCancel;
    }
}

adsk::core::DialogResults answerOfName(const std::string& name) {
    if (name == "ok") return adsk::core::DialogOK;
    if (name == "cancel") return adsk::core::DialogCancel;
    if (name == "yes") return adsk::core::DialogYes;
    return adsk::core::DialogNo;
}

bool hasButton(const Json& message, const std::string& answer) {
    return std::ranges::any_of(message["buttons"],
                               [&](const Json& each) { return each["answer"] == answer; });
}

}  // namespace

adsk::core::DialogResults ServedHost::askMessage(const host::Message& message) {
    Waiting waiting;
    waiting.id = ++newestQuestion_;
    waiting.message = messageJson(waiting.id, message);
    waiting.result = closingAnswer(message.buttons);
    waitForAnswer(waiting);
    return waiting.result;
}

host::PickedFiles ServedHost::askFiles(const host::FileDialogShown& dialog) {
    Waiting waiting;
    waiting.id = ++newestQuestion_;
    waiting.fileDialog = fileDialogJson(waiting.id, dialog,
                                        data_.folderName(host::fromUtf8(dialog.initialDirectory)));
    waiting.kind = dialog.kind;
    waitForAnswer(waiting);
    return waiting.files;
}

void ServedHost::waitForAnswer(Waiting& waiting) {
    const Restored before(waiting_, &waiting);
    publish();
    answerWaiting();
    while (!waiting.answered && queue_.waitAndRun(kPatience)) {
    }
}

void ServedHost::answerWaiting() {
    // A copy: an answer may end what waits for it.
    for (InAction* const each : std::vector<InAction*>(inAction_)) {
        each->reply({{"waiting", true}});
    }
}

ServedHost::Waiting& ServedHost::waitingFor(int id, bool isMessage) {
    if (waiting_ == nullptr || waiting_->answered || waiting_->id != id ||
        waiting_->message.is_null() == isMessage) {
        throw ProtocolError(kConflict, "nothing with the number " + std::to_string(id) +
                                           " waits for that answer any more");
    }
    return *waiting_;
}

void ServedHost::answerMessage(const Action& action) {
    Waiting& waiting = waitingFor(action.id, /*isMessage=*/true);
    if (!hasButton(waiting.message, action.text)) {
        throw ProtocolError(kConflict,
                            "the message has no button for the answer \"" + action.text + "\"");
    }
    waiting.result = answerOfName(action.text);
    waiting.answered = true;
}

std::filesystem::path ServedHost::pickedFile(const std::string& name, host::FileDialogKind kind,
                                             bool replaces) const {
    if (kind == host::FileDialogKind::Folder) {
        return data_.existingFolder(name);
    }
    if (kind == host::FileDialogKind::Open) {
        return data_.existing(name);
    }
    std::filesystem::path file = data_.writable(name);
    std::error_code ignored;
    if (!replaces && std::filesystem::exists(file, ignored)) {
        throw ProtocolError(kConflict, "\"" + name + "\" exists already", "exists");
    }
    return file;
}

void ServedHost::answerFiles(const Action& action) {
    Waiting& waiting = waitingFor(action.id, /*isMessage=*/false);
    host::PickedFiles picked;
    if (action.files && !action.files->empty()) {
        if (action.files->size() > 1 && !waiting.fileDialog["multiple"].get<bool>()) {
            throw ProtocolError(kConflict, "the dialog takes one file");
        }
        picked.emplace();
        for (const std::string& each : *action.files) {
            picked->push_back(host::toUtf8(pickedFile(each, waiting.kind, action.replace)));
        }
    }
    waiting.files = std::move(picked);
    waiting.answered = true;
}

// Again and again on the host's clock: while the module waits with `doEvents`, the pages see how
// far it is, and the user may go on.
void ServedHost::watchProgress() {
    session_->schedule(kProgressInterval, [this] {
        watchProgress();  // first: it goes on whatever is thrown below
        const std::optional<host::Progress> progress = host::progressDialog();
        if (queue_.isClosed() && progress && !progress->cancelButton.empty()) {
            host::cancelProgress();
        }
        if (depth_ > 0 && waiting_ == nullptr && busy_.empty()) {
            if (readState()) {
                showAll();
            }
            answerWaiting();
        }
    });
}

}  // namespace workbench::serve
