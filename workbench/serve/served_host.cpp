#include "workbench/serve/served_host.h"

#include "workbench/serve/design_digest.h"
#include "workbench/serve/protocol_error.h"
#include "workbench/serve/state_json.h"

#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/import/read_shapes.h"
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

constexpr double kProgressInterval = 0.1;  // seconds

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

/// Whether an action is one that waits for no one.
bool isAnswer(ActionKind kind) {
    return kind == ActionKind::AnswerMessage || kind == ActionKind::AnswerFile ||
           kind == ActionKind::View;
}

}  // namespace

/// A message or a file dialog that the module shows.
struct ServedHost::Waiting {
    int id = 0;
    Json message;  ///< null for a file dialog
    Json fileDialog;
    bool answered = false;
    adsk::core::DialogResults result = adsk::core::DialogOK;
    host::PickedFiles files;
};

/// An action that is being done, until it is answered.
class ServedHost::InAction {
public:
    InAction(ServedHost& host, const Answer& answer) : host_(host), answer_(answer) {
        host_.inAction_.push_back(this);
    }
    InAction(const InAction&) = delete;
    InAction& operator=(const InAction&) = delete;
    ~InAction() { std::erase(host_.inAction_, this); }

    void reply(Json answer) {
        if (!std::exchange(answered_, true)) {
            answer["ok"] = true;
            answer["revision"] = host_.revision_;
            answer_(answer);
        }
    }

    [[nodiscard]] bool isAnswered() const { return answered_; }

private:
    ServedHost& host_;
    const Answer& answer_;
    bool answered_ = false;
};

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
    running_ = session_->run();
    publish();
}

void ServedHost::load() {
    log_.beginSession();
    pictures_ = std::make_unique<AddinPictures>(session_->addin());
    session_->useData({data_.path(), "", host::ReferencedFiles::KnownAtOnce});
    host::askForAnswers([this](const host::Message& message) { return askMessage(message); });
    host::askForFiles([this](const host::FileDialogShown& dialog) { return askFiles(dialog); });
    watchProgress();
}

void ServedHost::loop() {
    while (queue_.waitAndRun()) {
        try {
            host::runPostedWork();
        } catch (const std::exception& error) {
            log_.addWarning(error.what());
        }
    }
}

void ServedHost::stop() {
    if (session_) {
        document_ = nullptr;
        session_->stop();
        session_.reset();
    }
}

void ServedHost::showDesign(host::DesignData design, const fs::path& file) {
    if (file.empty()) {
        session_->openDesign(std::move(design));
    } else {
        session_->openDesign(std::move(design), file);
    }
    file_ = file;
    savedEdits_ = host::editsOfDesign();
}

void ServedHost::reload() {
    if (inAction_.size() > 1) {
        throw ProtocolError(kConflict, "the add-in is at work: wait until it has finished");
    }
    const bool changed = host::editsOfDesign() != savedEdits_;
    host::DesignData design = session_->design();
    stop();
    running_ = false;
    session_ = std::make_unique<host::Session>(setup_.session);
    load();
    showDesign(std::move(design), file_);
    if (changed) {
        --savedEdits_;
    }
    running_ = session_->run();
}

// --- Actions

void ServedHost::act(const Action& action, const Answer& answer) {
    refuseWhileWaiting(action);
    InAction running(*this, answer);
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
    if (isAnswer(action.kind)) {
        return;
    }
    if (!session_ || !busy_.empty()) {
        throw ProtocolError(kConflict, "the program is at work: " + busy_);
    }
    if (waiting_) {
        throw ProtocolError(kConflict, waiting_->message.is_null()
                                           ? "a file dialog is open: answer it first"
                                           : "a message waits for an answer: answer it first");
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

fs::path ServedHost::saveTarget() const {
    if (file_.empty() || endsIn(host::toUtf8(file_.filename()), ".json")) {
        return file_;
    }
    fs::path target = file_;
    target.replace_extension();
    return target += host::kDesignFileEnding;
}

void ServedHost::openFile(const Action& action) {
    if (inAction_.size() > 1) {
        throw ProtocolError(kConflict, "the add-in is at work: wait until it has finished");
    }
    const fs::path file = action.file ? data_.existing(*action.file) : setup_.given;
    if (file.empty()) {
        throw ProtocolError(kConflict, "the program was started without a file; name one");
    }
    std::vector<host::ReadingWarning> warnings;
    std::optional<host::DesignData> design;
    busy_ = "Reading " + nameOf(file);
    publish();
    try {
        design = setup_.read(
            file, [this](const std::string&, double) { breathe(); }, warnings);
    } catch (...) {
        busy_.clear();
        throw;
    }
    busy_.clear();
    for (const host::ReadingWarning& each : warnings) {
        log_.add(each);
    }
    showDesign(std::move(*design), file);
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
        throw ProtocolError(kConflict, "\"" + nameOf(target) + "\" exists already",
                            /*exists=*/true);
    }
    session_->save(target);
    file_ = target;
    savedEdits_ = host::editsOfDesign();
}

std::optional<fs::path> ServedHost::openedFile(std::size_t number) const {
    if (!session_ || number >= session_->openedByShell().size()) {
        return std::nullopt;
    }
    std::string target = session_->openedByShell()[number];
    std::ranges::replace(target, '\\', '/');
    std::error_code failure;
    const fs::path home = fs::canonical(session_->folder(), failure);
    const fs::path full = fs::weakly_canonical(home / host::fromUtf8(target), failure);
    const fs::path relative = full.lexically_relative(home);
    return failure || relative.empty() ? std::nullopt : fileInside(home, host::toUtf8(relative));
}

// --- What the module waits for

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
    waiting.fileDialog = fileDialogJson(waiting.id, dialog);
    waitForAnswer(waiting);
    return waiting.files;
}

void ServedHost::waitForAnswer(Waiting& waiting) {
    Waiting* const before = std::exchange(waiting_, &waiting);
    publish();
    answerWaiting();
    while (!waiting.answered && queue_.waitAndRun()) {
    }
    waiting_ = before;
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

void ServedHost::answerFiles(const Action& action) {
    Waiting& waiting = waitingFor(action.id, /*isMessage=*/false);
    host::PickedFiles picked;
    if (action.files && !action.files->empty()) {
        if (action.files->size() > 1 && !waiting.fileDialog["multiple"].get<bool>()) {
            throw ProtocolError(kConflict, "the dialog takes one file");
        }
        picked.emplace();
        for (const std::string& each : *action.files) {
            picked->push_back(host::toUtf8(data_.existing(each)));
        }
    }
    waiting.files = std::move(picked);
    waiting.answered = true;
}

// Again and again on the host's clock: while the module waits with `doEvents`, the pages see how
// far it is, and the user may go on.
void ServedHost::watchProgress() {
    session_->schedule(kProgressInterval, [this] {
        if (!inAction_.empty() && waiting_ == nullptr && busy_.empty()) {
            if (readState()) {
                showAll();
            }
            answerWaiting();
        }
        watchProgress();
    });
}

// --- The state

void ServedHost::publish() {
    static_cast<void>(readState());
    showAll();
}

void ServedHost::showAll() {
    ++revision_;
    for (const std::shared_ptr<Page>& each : pages_.all()) {
        showTo(*each);
    }
}

void ServedHost::greet(const std::shared_ptr<Page>& page) {
    if (revision_ == 0) {
        publish();
    } else {
        showTo(*page);
    }
}

void ServedHost::showTo(Page& page) {
    const auto state = std::make_shared<State>();
    state->revision = revision_;
    state->sections = sections_;
    state->sections["dialog"] = std::make_shared<const Json>(dialogFor(page));
    page.show(state);
}

bool ServedHost::readState() {
    if (!session_) {
        return false;
    }
    log_.follow(*session_);
    const host::ToolbarView toolbars = host::readToolbars();
    const std::optional<host::Progress> progress = host::progressDialog();
    std::map<std::string, Json> fresh;
    readDesignState(fresh);
    fresh["document"] = documentJson();
    fresh["addin"] = {{"name", session_->addin().name}, {"running", running_}};
    fresh["workspaces"] = workspacesJson(toolbars, *pictures_);
    fresh["commands"] = controlsJson(toolbars.withoutButton, *pictures_);
    fresh["selection"] = host::selectedPaths();
    const bool isAsked = waiting_ != nullptr && !waiting_->answered;
    fresh["message"] = isAsked ? waiting_->message : Json();
    fresh["fileDialog"] = isAsked ? waiting_->fileDialog : Json();
    fresh["progress"] = progress ? progressJson(*progress) : Json();
    fresh["busy"] = busy_.empty() ? Json() : Json(busy_);
    fresh["palettes"] = palettesJson(host::readPalettes());
    fresh["opened"] = openedJson();
    fresh["log"] = log_.json();
    const bool dialogChanged = readDialogState();
    return update(sections_, std::move(fresh)) || dialogChanged;
}

void ServedHost::readDesignState(std::map<std::string, Json>& fresh) {
    const Ptr<adsk::core::Document> shown = adsk::core::Application::get()->activeDocument();
    const std::uint64_t edits = host::editsOfDesign();
    const bool isOther = shown != document_;
    if (isOther || edits != readEdits_ || !design_) {
        design_ = std::make_shared<const host::DesignData>(session_->design());
        readEdits_ = edits;
        const std::uint64_t digest = digestOf(*design_);
        if (isOther || digest != modelDigest_) {
            modelDigest_ = digest;
            ++modelRevision_;
        }
        fresh["tree"] = treeJson(*design_);
    }
    if (isOther) {
        document_ = shown;
        shapes_.reset();
    }
    fresh["model"] = {{"revision", modelRevision_}};
}

Json ServedHost::documentJson() const {
    const fs::path target = saveTarget();
    return {{"name", design_->name},
            {"file", file_.empty() ? "" : nameOf(file_)},
            {"saveAs", target.empty() ? "" : nameOf(target)},
            {"changed", host::editsOfDesign() != savedEdits_},
            {"given", setup_.givenName},
            {"data", host::toUtf8(data_.path())}};
}

Json ServedHost::openedJson() const {
    Json all = Json::array();
    const std::vector<std::string>& targets = session_->openedByShell();
    for (std::size_t n = 0; n < targets.size(); ++n) {
        all.push_back({{"n", n},
                       {"target", targets[n]},
                       {"url", openedFile(n) ? "/opened/" + std::to_string(n) : ""}});
    }
    return all;
}

bool ServedHost::readDialogState() {
    const Ptr<adsk::core::Command> shown = host::openDialog();
    if (shown != shownDialog_) {
        shownDialog_ = shown;
        for (const std::shared_ptr<Page>& each : pages_.all()) {
            each->windows.clear();
        }
    }
    dialog_.reset();
    Json json;
    if (shown) {
        dialog_ = host::readDialog(host::TableRows::Skip);
        json = dialogJson(*dialog_, *pictures_);
    }
    const bool changed = json != dialogJson_;
    dialogJson_ = std::move(json);
    return changed;
}

Json ServedHost::dialogFor(Page& page) const {
    Json json = dialogJson_;
    if (dialog_) {
        addWindows(json["inputs"], dialog_->inputs, page, /*isShown=*/true);
    }
    return json;
}

void ServedHost::addWindows(Json& inputs, const std::vector<host::InputView>& views,
                            const Page& page, bool isShown) const {
    for (std::size_t i = 0; i < views.size(); ++i) {
        const host::InputView& view = views[i];
        if (view.kind == "Table") {
            const auto found = page.windows.find(view.key);
            const RowWindow window = found == page.windows.end() ? RowWindow() : found->second;
            inputs[i]["window"] =
                windowJson(view, isShown ? window : RowWindow{.from = 0, .count = 0});
        } else if (view.kind == "Tab" || view.kind == "Group") {
            addWindows(inputs[i]["inputs"], view.inputs, page, isShown && view.active);
        }
    }
}

Json ServedHost::windowJson(const host::InputView& table, const RowWindow& window) const {
    const std::vector<int>& shown = table.table.shownRows;
    const std::size_t from = std::min(window.from, shown.size());
    const std::size_t count = std::min(window.count, shown.size() - from);
    const auto first = shown.begin() + static_cast<std::ptrdiff_t>(from);
    const std::vector<int> order(first, first + static_cast<std::ptrdiff_t>(count));
    std::vector<int> read = order;
    if (window.count > 0 && !shown.empty() && from > 0) {
        read.push_back(shown.front());  // the headings
    }
    const std::vector<host::RowView> rows = read.empty()
                                                ? std::vector<host::RowView>()
                                                : host::readRows(host::inputOfKey(table.key), read);
    return {{"first", shown.empty() ? -1 : shown.front()},
            {"from", from},
            {"order", order},
            {"rows", rowsJson(rows, *pictures_)}};
}

void ServedHost::setWindow(const Action& action) {
    const std::shared_ptr<Page> page = pages_.find(action.page);
    if (!page) {
        throw ProtocolError(kNotFound, "no such page: " + std::to_string(action.page));
    }
    const Ptr<adsk::core::TableCommandInput> table = input(action.input);
    if (!table) {
        throw ProtocolError(kConflict, "that input is not a table");
    }
    page->windows[host::keyOf(table)] = {.from = action.from, .count = action.count};
}

// --- The model

ModelSource ServedHost::model() {
    if (!shapes_ && design_) {
        busy_ = "Drawing " + design_->name;
        publish();
        constexpr double kDeflection = 0.002;
        constexpr double kAngle = 0.5;
        host::ShapeRequest request = {.meshes = true};
        request.deflection = kDeflection;
        request.angle = kAngle;
        shapes_ = std::make_shared<const host::ShapeData>(host::readShapes(*design_, request));
        busy_.clear();
        publish();
    }
    return {.revision = modelRevision_, .design = design_, .shapes = shapes_};
}

}  // namespace workbench::serve
