#include "workbench/dialogs/addin_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/output/design_changes.h"

#include "host/base/utf8_path.h"
#include "host/session/document_design.h"
#include "host/session/endless_error.h"
#include "host/session/main_thread.h"
#include "host/session/session_error.h"
#include "host/session/toolbar_view.h"

#include <algorithm>
#include <exception>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

constexpr const char* kStagedManifest =
    R"({"autodeskProduct": "Fusion360", "type": "addin", "version": "1.0.0"})";

/// Whether a module is that of an add-in's folder: one of its name, with a manifest.
bool isInOwnFolder(const fs::path& module) {
    const host::AddinFiles files{module.parent_path(), host::toUtf8(module.stem())};
    std::error_code ignored;
    return module.parent_path().filename() == module.stem() && files.module() == module &&
           fs::is_regular_file(files.manifest(), ignored);
}

void writeManifest(const fs::path& file) {
    std::ofstream manifest(file);
    manifest << kStagedManifest << std::flush;
    if (!manifest) {
        throw std::runtime_error(host::toUtf8(file) + ": cannot be written");
    }
}

/// Appends to `into` what a list has beyond the first `known`, and counts it as known.
template <class List, class Target, class Convert>
void takeNew(const List& list, std::size_t& known, Target& into, const Convert& convert) {
    for (; known < list.size(); ++known) {
        into.push_back(convert(list[known]));
    }
}

constexpr auto kAsItIs = [](const auto& each) { return each; };

std::string logText(const host::LogLine& line) { return line.text; }

std::string withCaption(const std::string& command) {
    return command + " \"" + host::readCommand(command).caption + "\"";
}

host::SessionOptions optionsOf(const RunFolder& folder) {
    host::SessionOptions options = folder.session();
    options.shell = host::shell_requests::Policy::Record;
    return options;
}

/// Whether an option asked for the step: what cannot be done then is wrong usage.
bool isOption(const RunStep& step) {
    return step.name == "ok" || step.name.starts_with("press ") || step.name.starts_with("set ");
}

/// Whether the user cannot do what an option asked for.
bool isRefusal(const std::exception& obstacle) {
    const bool isEndless = dynamic_cast<const host::EndlessError*>(&obstacle) != nullptr;
    return dynamic_cast<const host::SessionError*>(&obstacle) != nullptr ||
           (!isEndless && dynamic_cast<const host::MisuseError*>(&obstacle) != nullptr);
}

/// What ends the run where a step could not be done.
Failure failureOf(const RunStep& step, bool isAsked, const std::exception& obstacle) {
    if (const auto* failure = dynamic_cast<const Failure*>(&obstacle)) {
        return *failure;
    }
    return isAsked && isRefusal(obstacle)
               ? Failure(ExitCode::BadUsage, "--" + step.name + ": " + obstacle.what())
               : Failure(ExitCode::AddinFailed, step.name + ": " + obstacle.what());
}

/// The changes of a design of the module's own, from the empty one where it was not there before.
void addChanges(std::vector<std::string>& all, std::optional<host::DesignData> before,
                const host::DesignData& now) {
    const std::string design = "design \"" + now.name + "\"";
    if (!before) {
        all.push_back(design + " is new");
        before = host::newDesign();
        before->components.front().name = now.components.front().name;
        before->components.front().partNumber = now.components.front().partNumber;
    }
    for (const std::string& each : changesBetween(*before, now)) {
        all.push_back(design + ": " + each);
    }
}

/// A module has no folder that the caller knows: the failure names what they named.
std::unique_ptr<host::Session> load(const std::string& addin, const RunFolder& folder) {
    try {
        return startSession(optionsOf(folder));
    } catch (const Failure& failure) {
        throw Failure(failure.code(), addin + ": " + failure.what());
    }
}

adsk::core::Ptr<adsk::core::Document> activeDocument() {
    return adsk::core::Application::get()->activeDocument();
}

AddinChoice choiceOf(const NamedAddin& addin) {
    AddinChoice choice;
    choice.addin = addin.folder();
    return choice;
}

}  // namespace

NamedAddin::NamedAddin(const std::string& name) {
    const fs::path path = fs::absolute(host::fromUtf8(name)).lexically_normal();
    std::error_code ignored;
    if (fs::is_directory(path, ignored)) {
        folder_ = host::toUtf8(path);
    } else if (!fs::is_regular_file(path, ignored)) {
        throw Failure(ExitCode::NoAddin,
                      name + ": no such file; expected an add-in's folder or its module");
    } else if (isInOwnFolder(path)) {
        folder_ = host::toUtf8(path.parent_path());
    } else {
        stage(path);
    }
}

NamedAddin::~NamedAddin() {
    if (staged_) {
        staged_->discard({});
    }
}

void NamedAddin::stage(const fs::path& module) {
    try {
        staged_ = host::SessionFolder::makeFresh({});
        const std::string name = host::toUtf8(module.stem());
        const host::AddinFiles files{staged_->path() / host::fromUtf8(name), name};
        fs::create_directories(files.folder);
        fs::copy_file(module, files.module());
        writeManifest(files.manifest());
        folder_ = host::toUtf8(files.folder);
    } catch (const std::exception& error) {
        if (staged_) {
            staged_->discard({});
        }
        throw Failure(ExitCode::NoAddin, error.what());
    }
}

AddinRun::AddinRun(const std::string& addin)
    : addin_(addin), folder_(choiceOf(addin_), DataUse::Read), session_(load(addin, folder_)) {
    if (!session_->exports("run")) {
        throw Failure(ExitCode::NoAddin,
                      addin +
                          ": exports no function \"run\"; a module for this host has "
                          "extern \"C\" XI_EXPORT bool run(const char* context)");
    }
}

void AddinRun::act(RunStep& step, const Parts& parts) {
    bool isAsked = isOption(step);
    try {
        parts.action();
        isAsked = false;
        host::runPostedWork();
        parts.look();
    } catch (const std::exception& obstacle) {
        note(step);
        throw failureOf(step, isAsked, obstacle);
    }
    note(step);
}

void AddinRun::rememberDesign() {
    document_ = activeDocument();
    before_ = session_->design();
    opened_ = session_->designsOpenedByModule();
}

std::vector<std::string> AddinRun::changes() const {
    std::vector<std::string> all;
    const adsk::core::Ptr<adsk::core::Document> active = activeDocument();
    if (active != document_) {
        all.push_back("another design is active: \"" + (active ? active->name() : "") + "\"");
    }
    std::ranges::copy(changesBetween(before_, host::designIn(document_)), std::back_inserter(all));
    const std::vector<host::DesignData> opened = session_->designsOpenedByModule();
    for (std::size_t i = 0; i < opened.size(); ++i) {
        addChanges(all, i < opened_.size() ? std::optional(opened_[i]) : std::nullopt, opened[i]);
    }
    return all;
}

void AddinRun::note(RunStep& step) {
    takeNew(session_->uncaughtExceptions(), thrown_, step.thrown, kAsItIs);
    takeNew(host::misuses(), misused_, step.misused, kAsItIs);
    takeNew(session_->messages(), messages_, step.messages, kAsItIs);
    takeNew(session_->log(), log_, step.log, logText);
    takeNew(session_->openedByShell(), shellRequests_, step.opened, kAsItIs);
    std::set<std::string> commands;
    for (const std::string& each : host::commandIds()) {
        if (!commands_.contains(each)) {
            step.commands.push_back(withCaption(each));
        }
        commands.insert(each);
    }
    commands_ = std::move(commands);
}

}  // namespace workbench
