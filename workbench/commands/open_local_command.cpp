#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/interrupt.h"
#include "workbench/commands/commands.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/design_files.h"
#include "workbench/output/display_text.h"
#include "workbench/output/progress_line.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"
#include "host/session/dialog_answers.h"

#include <algorithm>
#include <csignal>
#include <cstddef>
#include <memory>
#include <optional>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

struct OpenLocalOptions {
    std::vector<std::string> files;
    std::string out;    ///< folder for the designs; empty: the current one
    std::string data;   ///< folder whose folders are projects; empty: the user's own
    int timeout = 300;  ///< seconds until what still waits for a file is cancelled
    std::string addin;  ///< folder of the add-in; empty: the one beside the program
};

/// Shows what the add-in waits for, and cancels it after Ctrl-C; again and again on the host's
/// clock, for as long as the line lives.
void watchWaiting(host::Session& session, const std::weak_ptr<ProgressLine>& watched) {
    const std::shared_ptr<ProgressLine> line = watched.lock();
    if (!line) {
        return;
    }
    const std::optional<host::Progress> progress = host::progressDialog();
    if (progress && InterruptGuard::interrupted()) {
        host::cancelProgress();
    } else if (progress) {
        line->show(printable(progress->text) + "  (Ctrl-C cancels)");
    }
    constexpr double kInterval = 0.1;
    session.schedule(kInterval, [&session, watched] { watchWaiting(session, watched); });
}

host::SessionOptions waitingSession(const OpenLocalOptions& options) {
    host::SessionOptions session = userSession(options.addin);
    session.system.sleepTakesTime = true;
    session.host.clock = host::clock::ClockMode::Real;
    session.host.longestWait = options.timeout;
    return session;
}

/// The user's data: the named folder, else the program's own, which begins with one project.
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

/// A failure for want of the add-in's locale, with what to do about it.
Failure explained(const Failure& failure, const host::Session& session) {
    const auto& thrown = session.uncaughtExceptions();
    const bool missing = std::any_of(
        thrown.begin(), thrown.end(),
        [](const host::UncaughtException& each) { return each.text == "bad locale name"; });
    return missing ? Failure(ExitCode::AddinFailed,
                             "the add-in needs the Czech locale, which is not installed; as root, "
                             "run localedef -i cs_CZ -f UTF-8 cs_CZ.UTF-8")
                   : failure;
}

/// Presses the button and picks the files. Returns what went wrong: files that were opened before
/// are saved all the same.
std::optional<Failure> open(DialogSession& dialog, const std::vector<std::string>& names) {
    const InterruptGuard guard;
    const auto line = std::make_shared<ProgressLine>();
    watchWaiting(dialog.session(), line);
    try {
        dialog.act([&](host::Session& session) {
            host::answerNextFileDialog(names);
            session.press(kOpenLocalCommand);
            line->show("");
        });
        return std::nullopt;
    } catch (const Failure& failure) {
        return explained(failure, dialog.session());
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

/// Has "Open local file" bring files into the host, and saves each document that it opened. Where
/// not every file became a document, those that did are saved.
void runOpenLocal(const OpenLocalOptions& options) {
    const std::vector<std::string> names = absoluteNames(options.files);
    const fs::path out = fs::current_path() / host::fromUtf8(options.out);
    if (!fs::is_directory(out)) {
        throw Failure(ExitCode::OutputFailed, "--out " + options.out + ": not a directory");
    }
    DialogSession dialog(waitingSession(options));
    dialog.act([&](host::Session& session) { useProjects(session, options.data); });
    const std::optional<Failure> obstacle = open(dialog, names);
    reportWarnings(dialog.session().importWarnings());
    const std::vector<host::DesignData> designs = dialog.session().designsOpenedByModule();
    saveInFolder(designs, out);
    if (obstacle) {
        throw *obstacle;
    }
    refuseUnopened(designs.size(), names.size());
}

}  // namespace

void addOpenLocalCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "open-local", "Bring files into the host with \"Open local file\", and save the designs");
    OpenLocalOptions& options = optionsFor(command, runOpenLocal);
    command
        .add_option("FILE", options.files,
                    "Files of any format. STEP, IGES and .f3d are imported; all others are\n"
                    "uploaded into the user's project and opened from there. Those that can be\n"
                    "opened are saved, even if others fail")
        ->required();
    command
        .add_option("--out", options.out,
                    "Save the design files in this folder, by default the current one")
        ->type_name("DIR");
    command
        .add_option("--data", options.data,
                    "A folder whose folders are projects, the first of which takes the uploads;\n"
                    "by default the program's own")
        ->type_name("DIR");
    command
        .add_option("--timeout", options.timeout,
                    "Cancel after waiting this long for one file, as Ctrl-C does at once")
        ->type_name("SECONDS")
        ->check(CLI::Range(1, 86400))
        ->capture_default_str();
    addAddin(command, options.addin);
}

}  // namespace workbench
