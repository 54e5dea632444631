#include "workbench/dialogs/addin_run.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/output/design_changes.h"

#include "host/base/utf8_path.h"
#include "host/session/toolbar_view.h"

#include <fstream>
#include <stdexcept>
#include <system_error>

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

/// A module has no folder that the caller knows: the failure names what they named.
std::unique_ptr<host::Session> load(const std::string& addin, const RunFolder& folder) {
    try {
        return startSession(optionsOf(folder));
    } catch (const Failure& failure) {
        throw Failure(failure.code(), addin + ": " + failure.what());
    }
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
        std::ofstream(files.manifest()) << kStagedManifest;
        folder_ = host::toUtf8(files.folder);
    } catch (const std::runtime_error& error) {
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

void AddinRun::act(RunStep& step, const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure&) {
        note(step);
        throw;
    } catch (const std::runtime_error& obstacle) {
        note(step);
        throw isOption(step)
            ? Failure(ExitCode::BadUsage, "--" + step.name + ": " + obstacle.what())
            : Failure(ExitCode::AddinFailed, step.name + ": " + obstacle.what());
    }
    note(step);
}

std::vector<std::string> AddinRun::changes() const {
    return changesBetween(before_, session_->design());
}

void AddinRun::note(RunStep& step) {
    takeNew(session_->uncaughtExceptions(), thrown_, step.thrown, kAsItIs);
    takeNew(host::misuses(), misused_, step.misused, kAsItIs);
    takeNew(session_->messages(), messages_, step.messages, kAsItIs);
    takeNew(session_->log(), log_, step.log, logText);
    takeNew(session_->openedByShell(), opened_, step.opened, kAsItIs);
    takeNew(host::commandIds(), commands_, step.commands, withCaption);
}

}  // namespace workbench
