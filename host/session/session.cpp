#include "host/session/session.h"

#include "host/application/main_queue.h"
#include "host/base/clock.h"
#include "host/base/utf8_path.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/design/outline.h"
#include "host/session/browser_tree.h"
#include "host/session/dialog_answers.h"
#include "host/session/dialog_inputs.h"
#include "host/session/process_state.h"

#include <stdexcept>
#include <utility>

namespace host {
namespace {

using namespace adsk::core;

std::shared_ptr<const SessionFolder> folderFor(const SessionOptions& options) {
    if (options.folder) {
        return options.folder;
    }
    return std::make_shared<const SessionFolder>(
        options.home.empty() ? SessionFolder::makeFresh(options.scratchRoot)
                             : SessionFolder::keep(options.home, options.lockTimeout));
}

/// Makes sure that the file will be loaded again: its statics are to be those of a new session.
void unloadLeftModule(const std::filesystem::path& file) {
    auto& leftModules = processState().leftModules;
    const auto left = leftModules.find(file);
    if (left != leftModules.end()) {
        left->second.unload();
        leftModules.erase(left);
    }
}

/// The options of the process's only session, checked before anything is made for it.
SessionOptions onlySession(SessionOptions options) {
    if (HostState::current() != nullptr) {
        throw SessionError("this process has a session already");
    }
    return options;
}

}  // namespace

Session::Session(SessionOptions options)
    : options_(onlySession(std::move(options))),
      installed_(findAddin(options_.addin)),
      folder_(folderFor(options_)) {
    try {
        begin();
    } catch (...) {
        end();
        throw;
    }
}

Session::~Session() { end(); }

void Session::begin() {
    unloadLeftModule(folder_->path() / fromUtf8(installed_.name) / installed_.module().filename());
    addin_ = copyAddin(installed_, folder_->path());
    sandbox_.emplace(folder_->path(), options_.useUserTempDir ? TemporaryFiles::UserTempDir
                                                              : TemporaryFiles::Private);
    host_.emplace(options_.host);
    shell_requests::setPolicy(options_.shell);
    system_overrides::set(options_.system);
    ApplicationObject::current()->preferences()->generalPreferences()->userLanguage(
        options_.language);
    newDesign();
    module_ = LoadedModule(addin_.module());
    setModuleStop([this] { stop(); });
}

void Session::end() noexcept {
    const bool wasLoaded = module_.isLoaded();
    host_.reset();
    endDocument(document_);
    document_ = nullptr;
    data_.reset();
    if (options_.unloadAtEnd) {
        module_.unload();
    } else if (wasLoaded && (options_.folder || !options_.home.empty())) {
        processState().leftModules[addin_.module()] = module_;
    }
    sandbox_.reset();
    if (!options_.folder) {
        const bool stays = wasLoaded && !options_.unloadAtEnd;
        folder_->discard(stays ? addin_.module() : std::filesystem::path());
    }
}

bool Session::call(const char* entry, const char* context) {
    const LoadedModule::Entry function = module_.entry(entry);
    bool result = false;
    if (function != nullptr) {
        enterModule(entry, "", [&] { result = function(context); });
        drainRequests();
        stopIfRequested();
    }
    return result;
}

bool Session::exports(const std::string& function) const {
    return module_.entry(function.c_str()) != nullptr;
}

bool Session::run() {
    isStopped_ = false;
    setUnloadsAfterRun(true);
    return call("run", R"({"IsApplicationStartup": true})");
}

bool Session::stop() {
    isStopped_ = true;
    return call("stop", R"({"IsApplicationClosing": true})");
}

std::filesystem::path Session::absolute(const std::filesystem::path& file) const {
    return sandbox_->startedIn() / file;
}

void Session::show(const Ptr<Document>& document, const Ptr<Product>& product) {
    const Ptr<Document> before = std::exchange(document_, document);
    ApplicationObject::current()->setActiveDocument(document, product);
    endDocument(before);
}

std::vector<ReadingWarning> Session::open(const std::filesystem::path& file,
                                          const ReadingLimits& limits,
                                          const ImportProgress& progress) {
    std::vector<ReadingWarning> warnings;
    openDesign(readDesign(absolute(file), limits, progress, warnings), file);
    return warnings;
}

void Session::openOutline(const std::string& outline) { openDesign(parseOutline(outline)); }

void Session::openDesign(DesignData design) {
    show(makeDocument(std::move(design), ApplicationObject::current()), nullptr);
}

void Session::openDesign(DesignData design, const std::filesystem::path& file) {
    openDesign(std::move(design));
    if (data_) {
        data_->tie(document_, absolute(file));
    }
}

void Session::newDesign() { openDesign(emptyDesign()); }

void Session::openForeignDocument() {
    const Ptr<Document> document = makeDocument(emptyDesign(), ApplicationObject::current());
    show(document, otherProductOf(document));
}

void Session::save(const std::filesystem::path& file) {
    saveDesignFile(absolute(file), design());
    if (data_) {
        data_->tie(ApplicationObject::current()->document(), absolute(file));
    }
}

void Session::useData(UserDataSetup setup) {
    setup.folder = absolute(setup.folder);
    try {
        data_ = std::make_unique<UserData>(std::move(setup));
    } catch (const std::invalid_argument& error) {
        throw SessionError(error.what());
    }
    ApplicationObject::current()->setData(data_->api());
}

DesignData Session::design() const { return snapshot(ApplicationObject::current()->document()); }

std::vector<DesignData> Session::designsOpenedByModule() const {
    std::vector<DesignData> designs;
    for (const Ptr<Document>& each : ApplicationObject::current()->openedInHost()) {
        designs.push_back(snapshot(each));
    }
    return designs;
}

void Session::editSketch(std::size_t component, std::size_t sketch) {
    const Ptr<ApplicationObject> application = ApplicationObject::current();
    const Ptr<adsk::fusion::Sketch> edited = sketchOf(application->document(), component, sketch);
    if (!edited) {
        throw SessionError("component " + std::to_string(component) + " has no sketch " +
                           std::to_string(sketch));
    }
    application->setActiveEditObject(edited);
}

void Session::leaveSketch() { ApplicationObject::current()->setActiveEditObject(nullptr); }

void Session::press(const std::string& commandId) { pressCommand(commandId); }

bool Session::dialogOpen() const { return static_cast<bool>(openDialog()); }

Ptr<Command> Session::dialog() const {
    Ptr<Command> command = openDialog();
    if (!command) {
        throw SessionError("no dialog is open");
    }
    return command;
}

Ptr<CommandInput> Session::input(const std::string& id) const { return findInput(dialog(), id); }

Ptr<TableCommandInput> Session::table(const std::string& id) const {
    Ptr<TableCommandInput> table = input(id);
    if (!table) {
        throw SessionError("the input \"" + id + "\" is no table");
    }
    return table;
}

std::vector<std::string> Session::inputIds() const { return host::inputIds(dialog()); }

void Session::click(const std::string& id) { host::click(input(id)); }

void Session::type(const std::string& id, const std::string& text) { typeText(input(id), text); }

void Session::paste(const std::string& id, const std::string& text) { pasteText(input(id), text); }

void Session::choose(const std::string& id, const std::string& item) {
    chooseItem(input(id), item);
}

void Session::activateTab(const std::string& id) {
    const Ptr<TabCommandInput> tab = input(id);
    if (!tab) {
        throw SessionError("the input \"" + id + "\" is no tab");
    }
    host::activateTab(tab);
}

void Session::pick(const std::string& path) {
    host::pick(inBrowserTree(designOf(ApplicationObject::current()->document()), path));
}

void Session::selectRow(const std::string& tableId, int row) {
    host::selectRow(table(tableId), row);
}

void Session::ok() { pressOk(); }

void Session::cancel() { pressCancel(); }

void Session::activateWorkspace(const std::string& id) { host::activateWorkspace(id); }

const std::vector<UncaughtException>& Session::uncaughtExceptions() const {
    return host::uncaughtExceptions();
}

void Session::clearUncaughtExceptions() { host::clearUncaughtExceptions(); }

const std::vector<ReadingWarning>& Session::importWarnings() const {
    return ApplicationObject::current()->importWarnings;
}

std::vector<Unmeasured> Session::unmeasured() const {
    return unmeasuredIn(ApplicationObject::current()->document());
}

void Session::schedule(double seconds, std::function<void()> action) {
    clock::schedule(clock::now() + seconds, std::move(action));
}

const std::vector<Message>& Session::messages() const { return host::messages(); }

std::vector<LogLine> Session::log() const {
    const auto* log = HostState::currentPart<Log>();
    return log == nullptr ? std::vector<LogLine>() : log->lines;
}

const std::vector<std::string>& Session::openedByShell() const {
    return shell_requests::recorded();
}

}  // namespace host
