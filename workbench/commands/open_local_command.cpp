#include "workbench/commands/open_local_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/design_files.h"
#include "workbench/output/display_text.h"
#include "workbench/output/progress_line.h"

#include "host/base/clock.h"
#include "host/base/utf8_path.h"
#include "host/cloud/storage_pace.h"
#include "host/ui/dialogs/file_dialog.h"
#include "host/ui/dialogs/progress_dialog.h"

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

volatile std::sig_atomic_t interrupted = 0;

extern "C" void noteInterrupt(int signal) {
    interrupted = 1;
    // Whoever does not want to wait for the end presses it once more.
    static_cast<void>(std::signal(signal, SIG_DFL));
}

/// While it lives, Ctrl-C is noted and does not end the program.
class NotingInterrupts {
public:
    NotingInterrupts() : before_(std::signal(SIGINT, noteInterrupt)) { interrupted = 0; }
    NotingInterrupts(const NotingInterrupts&) = delete;
    NotingInterrupts& operator=(const NotingInterrupts&) = delete;
    ~NotingInterrupts() { static_cast<void>(std::signal(SIGINT, before_)); }

private:
    void (*before_)(int);
};

/// Shows what the add-in waits for, and cancels it when the user wants it; from now on at each look
/// of the host at its clock, for as long as somebody keeps the line.
void watchWaiting(const std::weak_ptr<ProgressLine>& watched) {
    const std::shared_ptr<ProgressLine> line = watched.lock();
    if (!line) {
        return;
    }
    const std::optional<host::Progress> progress = host::progressDialog();
    if (progress && interrupted != 0) {
        host::cancelProgress();
    } else if (progress) {
        line->show(printable(progress->text) + "  (Ctrl-C cancels)");
    }
    constexpr double kLookEach = 0.1;
    host::clock::schedule(host::clock::now() + kLookEach, [watched] { watchWaiting(watched); });
}

host::SessionOptions waitingSession(const OpenLocalOptions& options) {
    host::SessionOptions session = userSession(options.addin);
    session.system.sleepTakesTime = true;
    session.host.clock = host::clock::ClockMode::Real;
    session.host.longestWait = options.timeout;
    return session;
}

/// The user's data: the folder that was named, else one with one project in the beginning.
void useProjects(host::Session& session, const std::string& named) {
    fs::path projects = host::fromUtf8(named);
    if (named.empty()) {
        projects = userFolder() / "Projects";
        fs::create_directories(projects / "Local");
    }
    session.useData({projects, "", host::ReferencedFiles::KnownAtOnce});
}

std::vector<std::string> absoluteNames(const std::vector<std::string>& files) {
    std::vector<std::string> names;
    names.reserve(files.size());
    for (const std::string& each : files) {
        names.push_back(host::toUtf8(fs::absolute(host::fromUtf8(each)).lexically_normal()));
    }
    return names;
}

/// What the add-in threw for want of its locale, in words that help.
Failure explained(const Failure& failure, const host::Session& session) {
    const auto& thrown = session.uncaughtExceptions();
    const bool missing = std::any_of(
        thrown.begin(), thrown.end(),
        [](const host::UncaughtException& each) { return each.text == "bad locale name"; });
    return missing ? Failure(ExitCode::AddinFailed,
                             "the add-in needs the Czech locale, which this system does not have; "
                             "as root, localedef -i cs_CZ -f UTF-8 cs_CZ.UTF-8 makes it")
                   : failure;
}

/// Presses the button and picks the files; what went wrong then.
std::optional<Failure> open(DialogRun& run, const std::vector<std::string>& names) {
    const NotingInterrupts noting;
    const auto line = std::make_shared<ProgressLine>();
    watchWaiting(line);
    try {
        run.act([&](host::Session& session) {
            host::answerNextFileDialog(names);
            session.press(kOpenLocalCommand);
            line->show("");
        });
        return std::nullopt;
    } catch (const Failure& failure) {
        return explained(failure, run.session());
    }
}

void refuseUnopened(std::size_t opened, std::size_t wanted) {
    if (opened < wanted) {
        std::string why;
        adsk::core::Application::get()->getLastError(&why);
        throw Failure(ExitCode::BadInput, "opened " + std::to_string(opened) + " of " +
                                              std::to_string(wanted) + " files" +
                                              (why.empty() ? "" : ": " + why));
    }
}

}  // namespace

void runOpenLocal(const OpenLocalOptions& options) {
    const std::vector<std::string> names = absoluteNames(options.files);
    const fs::path out = fs::current_path() / host::fromUtf8(options.out);
    if (!fs::is_directory(out)) {
        throw Failure(ExitCode::OutputFailed, "--out " + options.out + ": is no folder");
    }
    DialogRun run(waitingSession(options));
    run.act([&](host::Session& session) { useProjects(session, options.data); });
    const std::optional<Failure> obstacle = open(run, names);
    tellWarnings(run.session().importWarnings());
    const std::vector<host::DesignData> designs = run.session().designsOpenedByModule();
    saveInFolder(designs, out);
    if (obstacle) {
        throw *obstacle;
    }
    refuseUnopened(designs.size(), names.size());
}

}  // namespace workbench
