#include "workbench/serve/served_host.h"

#include "workbench/serve/protocol_error.h"
#include "workbench/serve/served_host_parts.h"
#include "workbench/serve/state_json.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/session/browser_tree.h"
#include "host/session/dialog_answers.h"
#include "host/session/main_thread.h"
#include "host/session/screen_view.h"

#include <algorithm>
#include <chrono>
#include <exception>
#include <type_traits>
#include <utility>

namespace workbench::serve {
namespace {

namespace fs = std::filesystem;
using adsk::core::Ptr;

/// Selects components in the model, by their paths in the browser tree.
void selectAll(const std::vector<std::string>& paths) {
    const Ptr<adsk::fusion::Design> design = adsk::core::Application::get()->activeProduct();
    std::vector<Ptr<adsk::core::Base>> entities;
    for (const std::string& each : paths) {
        entities.push_back(host::inBrowserTree(design, each));
    }
    host::selectInModel(entities);
}

bool endsIn(const std::string& text, const std::string& ending) {
    return text.size() > ending.size() && text.ends_with(ending);
}

/// Whether an action is possible while the module waits.
bool isAnswer(ActionKind kind) {
    return kind == ActionKind::AnswerMessage || kind == ActionKind::AnswerFile ||
           kind == ActionKind::View;
}

}  // namespace

ServedHost::ServedHost(ServeRequest request, MainQueue& queue, Pages& pages)
    : setup_(std::move(request)), queue_(queue), pages_(pages), data_(setup_.data) {}

ServedHost::~ServedHost() = default;

// --- The session

void ServedHost::begin(host::DesignData design, const std::vector<host::ReadingWarning>& warnings) {
    for (const host::ReadingWarning& each : warnings) {
        log_.add(each);
    }
    session_ = std::make_unique<host::Session>(setup_.session);
    load();
    showDesign(std::move(design), setup_.given);
}

void ServedHost::runAddin() {
    const Restored inside(depth_, depth_ + 1);
    wasRun_ = true;
    running_ = session_->run();
    publish();
}

void ServedHost::load() {
    log_.beginSession();
    pictures_ = std::make_unique<AddinPictures>(session_->addin(), ++loads_);
    session_->useData({data_.path(), "", host::ReferencedFiles::KnownAtOnce});
    host::askForAnswers([this](const host::Message& message) { return askMessage(message); });
    host::askForFiles([this](const host::FileDialogShown& dialog) { return askFiles(dialog); });
    watchProgress();
}

void ServedHost::loop() {
    constexpr std::chrono::milliseconds kIdle{500};
    while (queue_.waitAndRun(kIdle)) {
        try {
            const Restored inside(depth_, depth_ + 1);
            // What is scheduled is done now, and shown by `watchProgress`.
            host::runPostedWork();
        } catch (const std::exception& error) {
            log_.addWarning(error.what());
        }
    }
}

void ServedHost::stop() {
    if (!session_) {
        return;
    }
    if (std::exchange(wasRun_, false)) {
        session_->stop();
    }
    running_ = false;
    opened_.clear();
    shellRequests_ = Json::array();
    shellRequestsRead_ = 0;
    document_ = nullptr;
    shownDialog_ = nullptr;
    dialog_.reset();
    dialogJson_ = Json();
    session_.reset();
}

void ServedHost::showDesign(host::DesignData design, const fs::path& file) {
    if (file.empty()) {
        session_->openDesign(std::move(design));
    } else {
        session_->openDesign(std::move(design), file);
    }
    opened_.clear();
    Opened& shown = current();
    shown.file = file;
    shown.savedEdits = host::editsOfDesign();
}

ServedHost::Opened& ServedHost::current() {
    const Ptr<adsk::core::Document> active = adsk::core::Application::get()->activeDocument();
    auto found = std::ranges::find_if(
        opened_, [&active](const Opened& each) { return each.document == active; });
    if (found == opened_.end()) {
        // One that the add-in opened: it has no file yet.
        found = opened_.insert(found, Opened{.document = active, .name = "", .file = {}});
    }
    found->name = active ? active->name() : "";
    found->changed = host::editsOfDesign() != found->savedEdits;
    return *found;
}

const fs::path& ServedHost::file() { return kept_ ? kept_->file : current().file; }

bool ServedHost::isChanged() { return kept_ ? kept_->changed : current().changed; }

void ServedHost::reload() {
    refuseInside();
    if (session_) {
        static_cast<void>(host::findAddin(setup_.session.addin));
        if (host::showsPreview()) {
            session_->cancel();  // what it shows is not the user's yet
        }
        kept_ = Kept{.design = session_->design(), .file = file(), .changed = isChanged()};
        warnOfLostChanges();
        stop();
    }
    try {
        startAgain();
    } catch (const std::exception& error) {
        session_.reset();
        log_.addWarning(std::string("the add-in was not loaded again: ") + error.what());
        throw;
    }
    wasRun_ = true;
    running_ = session_->run();
}

void ServedHost::startAgain() {
    session_ = std::make_unique<host::Session>(setup_.session);
    load();
    showDesign(kept_->design, kept_->file);
    showsSameDesign_ = true;
    const Kept kept = *std::exchange(kept_, std::nullopt);
    if (kept.changed) {
        --current().savedEdits;
    }
}

void ServedHost::warnOfLostChanges() {
    const Ptr<adsk::core::Document> active = current().document;
    for (const Opened& each : opened_) {
        if (each.changed && each.document != active) {
            log_.addWarning("\"" + each.name + "\" was closed with changes that were not saved");
        }
    }
}

void ServedHost::refuseInside() const {
    if (depth_ > 1) {
        throw ProtocolError(kConflict, "the add-in is at work: wait until it has finished");
    }
}

// --- Actions

void ServedHost::act(const Action& action, const Answer& answer) {
    refuseWhileWaiting(action);
    InAction running(*this, answer);
    const Restored inside(depth_, depth_ + 1);
    Json result;
    try {
        result = perform(action);
    } catch (const std::exception& error) {
        publish();
        if (!running.isAnswered()) {
            throw;
        }
        log_.addWarning(error.what());
        result = Json::object();
    }
    publish();
    running.reply(std::move(result));
}

void ServedHost::refuseWhileWaiting(const Action& action) const {
    const bool needsNoAddin =
        action.kind == ActionKind::ReloadAddin || action.kind == ActionKind::Save;
    if (!session_ && !needsNoAddin) {
        throw ProtocolError(kConflict, "the add-in is not loaded: reload it, or save the design");
    }
    if (isAnswer(action.kind)) {
        return;
    }
    if (!busy_.empty()) {
        throw ProtocolError(kConflict, "the program is at work: " + busy_, "waiting");
    }
    if (waiting_) {
        throw ProtocolError(kConflict,
                            waiting_->message.is_null()
                                ? "a file dialog is open: answer it first"
                                : "a message waits for an answer: answer it first",
                            "waiting");
    }
}

Json ServedHost::perform(const Action& action) {
    switch (action.kind) {
        case ActionKind::Press:
            session_->press(action.text);
            break;
        case ActionKind::Pick:
            session_->pick(action.text);
            break;
        case ActionKind::SelectInModel:
            selectAll(action.paths);
            break;
        case ActionKind::Ok:
            session_->ok();
            break;
        case ActionKind::Cancel:
            session_->cancel();
            break;
        case ActionKind::Resize:
            host::resizeDialog(action.width, action.height);
            break;
        case ActionKind::Workspace:
            session_->activateWorkspace(action.text);
            break;
        case ActionKind::ClosePalette:
            host::closePalette(action.text);
            break;
        case ActionKind::CancelProgress:
            host::cancelProgress();
            break;
        default:
            return performOther(action);
    }
    return Json::object();
}

Json ServedHost::performOther(const Action& action) {
    switch (action.kind) {
        case ActionKind::MarkingMenu:
            return menu();
        case ActionKind::AnswerMessage:
            answerMessage(action);
            break;
        case ActionKind::AnswerFile:
            answerFiles(action);
            break;
        case ActionKind::View:
            setWindow(action);
            break;
        case ActionKind::Open:
            openFile(action);
            break;
        case ActionKind::Save:
            save(action);
            break;
        case ActionKind::ReloadAddin:
            reload();
            break;
        default:
            performInput(action);
            break;
    }
    return Json::object();
}

void ServedHost::performInput(const Action& action) {
    const Ptr<adsk::core::CommandInput> target = input(action.input);
    switch (action.kind) {
        case ActionKind::Click:
            host::click(target);
            break;
        case ActionKind::Type:
            host::typeText(target, action.text);
            break;
        case ActionKind::Paste:
            host::pasteText(target, action.text);
            break;
        case ActionKind::Choose:
            std::visit([&](const auto& item) { host::chooseItem(target, item); }, action.item);
            break;
        case ActionKind::Clear:
            host::clearPicks(target);
            break;
        case ActionKind::ActivateTab:
            host::activateTab(target);
            break;
        default:
            host::selectRow(target, action.row);
            break;
    }
}

Ptr<adsk::core::CommandInput> ServedHost::input(const InputName& name) const {
    if (const auto* const id = std::get_if<std::string>(&name)) {
        return session_->input(*id);
    }
    static_cast<void>(session_->dialog());
    Ptr<adsk::core::CommandInput> found = host::inputOfKey(std::get<std::uint32_t>(name));
    if (!found) {
        throw ProtocolError(kConflict, "the dialog has no input with the key " +
                                           std::to_string(std::get<std::uint32_t>(name)));
    }
    return found;
}

Json ServedHost::menu() {
    std::vector<host::ControlView> controls;
    for (const std::string& each : host::showMarkingMenu()) {
        controls.push_back(host::readCommand(each));
    }
    return {{"commands", controlsJson(controls, *pictures_)}};
}

// --- Files

std::string ServedHost::nameOf(const fs::path& file) const {
    const fs::path relative = file.lexically_relative(data_.path());
    const bool isInside = !relative.empty() && *relative.begin() != "..";
    return host::toUtf8(isInside ? fs::path(relative.generic_string()) : file.filename());
}

fs::path ServedHost::saveTarget() {
    fs::path target = file();
    if (target.empty() || endsIn(host::toUtf8(target.filename()), ".json")) {
        return target;
    }
    target.replace_extension();
    return target += host::kDesignFileEnding;
}

void ServedHost::openFile(const Action& action) {
    refuseInside();
    const fs::path file = action.file ? data_.existing(*action.file) : setup_.given;
    if (file.empty()) {
        throw ProtocolError(kConflict, "the program was started without a file; name one");
    }
    if (!action.discard) {
        refuseToDiscard();
    }
    std::vector<host::ReadingWarning> warnings;
    host::DesignData design = read(file, warnings);
    for (const host::ReadingWarning& each : warnings) {
        log_.add(each);
    }
    showDesign(std::move(design), file);
}

void ServedHost::refuseToDiscard() {
    static_cast<void>(current());
    for (const Opened& each : opened_) {
        if (each.changed) {
            throw ProtocolError(kConflict, "\"" + each.name + "\" has changes that are not saved",
                                "changed");
        }
    }
}

host::DesignData ServedHost::read(const fs::path& file,
                                  std::vector<host::ReadingWarning>& warnings) {
    const Restored busy(busy_, "Reading " + nameOf(file));
    publish();
    return setup_.read(
        file, [this](const std::string&, double) { breathe(); }, warnings);
}

void ServedHost::breathe() {
    if (queue_.isClosed()) {
        throw ProtocolError(kUnavailable, "the program is ending");
    }
    queue_.run();
}

void ServedHost::save(const Action& action) {
    if (action.file && !endsIn(*action.file, ".json")) {
        throw ProtocolError(
            kConflict, "\"" + *action.file + "\": the name of a design file must end in .json");
    }
    const fs::path target = action.file ? data_.writable(*action.file) : saveTarget();
    if (target.empty()) {
        throw ProtocolError(kConflict, "the design has no file yet; name one to save it in");
    }
    std::error_code ignored;
    if (!action.replace && fs::exists(target, ignored)) {
        throw ProtocolError(kConflict, "\"" + nameOf(target) + "\" exists already", "exists");
    }
    if (!session_) {
        host::saveDesignFile(target, kept_->design);
        kept_->file = target;
        kept_->changed = false;
        return;
    }
    if (host::showsPreview()) {
        throw ProtocolError(
            kConflict,
            "the dialog shows a preview of what it will do: press OK or Cancel, then save");
    }
    session_->save(target);
    Opened& saved = current();
    saved.file = target;
    saved.savedEdits = host::editsOfDesign();
}

std::optional<fs::path> ServedHost::openedFile(std::size_t number) const {
    if (!session_ || number >= session_->openedByShell().size()) {
        return std::nullopt;
    }
    std::string target = session_->openedByShell()[number];
    std::ranges::replace(target, '\\', '/');
    for (const fs::path& folder : {session_->folder(), data_.path()}) {
        std::error_code failure;
        const fs::path home = fs::canonical(folder, failure);
        const fs::path full = fs::weakly_canonical(home / host::fromUtf8(target), failure);
        const fs::path relative = full.lexically_relative(home);
        std::optional<fs::path> file;
        if (!failure && !relative.empty()) {
            file = fileInside(home, host::toUtf8(relative));
        }
        if (file) {
            return file;
        }
    }
    return std::nullopt;
}

// --- The model

ModelSource ServedHost::model() const {
    if (!design_) {
        throw ProtocolError(kConflict, "no design is open");
    }
    return {.revision = modelRevision_, .document = shownDocuments_, .design = design_};
}

void ServedHost::warn(const std::vector<std::string>& warnings) {
    for (const std::string& each : warnings) {
        log_.addWarning(each);
    }
    publish();
}

}  // namespace workbench::serve
