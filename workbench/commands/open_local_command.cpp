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
#include <cctype>
#include <csignal>
#include <cstddef>
#include <iterator>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <system_error>
#include <utility>

namespace workbench {
namespace {

namespace fs = std::filesystem;

struct OpenLocalOptions {
    std::vector<std::string> files;
    std::string out;    ///< folder for the designs; empty: the current one
    std::string data;   ///< folder whose folders are projects; empty: the user's own
    int timeout = 300;  ///< seconds until what still waits for a file is cancelled
    AddinChoice addin;
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

void waitInRealTime(host::SessionOptions& session, int timeout) {
    session.system.sleepTakesTime = true;
    session.host.clock = host::clock::ClockMode::Real;
    session.host.longestWait = timeout;
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

/// A file that is opened twice would be saved twice.
void refuseRepeated(const std::vector<std::string>& names) {
    std::set<fs::path> seen;
    for (const std::string& each : names) {
        std::error_code failure;
        const fs::path file = host::fromUtf8(each);
        const fs::path full = fs::weakly_canonical(file, failure);
        if (!seen.insert(failure ? file : full).second) {
            refuse(each + " is given twice; name each file once");
        }
    }
}

/// What a design of this file is called where the file itself does not say, in the letters that the
/// add-in passes on.
std::string designName(const std::string& file) {
    std::string name = host::toUtf8(host::fromUtf8(file).stem());
    std::ranges::transform(name, name.begin(),
                           [](unsigned char each) { return std::tolower(each); });
    return name;
}

/// The designs of files that share a name would be told apart by a number alone.
void refuseSharedNames(const std::vector<std::string>& names) {
    std::map<std::string, std::string> seen;
    for (const std::string& each : names) {
        const auto [first, isNew] = seen.emplace(designName(each), each);
        if (!isNew) {
            refuse(first->second + " and " + each +
                   " share a name, under which their designs are saved; open them by two runs, "
                   "with an --out of its own each");
        }
    }
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

/// What became of one file.
struct OpenedFile {
    std::string name;
    bool opened = false;
    std::string why;  ///< it was not, as far as that is known
};

/// Presses the button and picks one file. A failure of the add-in is thrown; what it opened before
/// stays open.
void pickAndOpen(DialogSession& dialog, const std::string& name) {
    const InterruptGuard guard;
    const auto line = std::make_shared<ProgressLine>();
    watchWaiting(dialog.session(), line);
    try {
        dialog.act([&](host::Session& session) {
            host::answerNextFileDialog(std::vector<std::string>{name});
            session.press(kOpenLocalCommand);
            line->show("");
        });
    } catch (const Failure& failure) {
        throw explained(failure, dialog.session());
    }
}

std::string lastError() {
    std::string text;
    adsk::core::Application::get()->getLastError(&text);
    return text;
}

/// The reason without the file's name, which the add-in passes in lower case.
std::string withoutName(const std::string& why, const std::string& name) {
    const std::string end = host::toUtf8(host::fromUtf8(name).filename()) + ": ";
    const auto equal = [](unsigned char one, unsigned char other) {
        return std::tolower(one) == std::tolower(other);
    };
    const auto found = std::search(why.begin(), why.end(), end.begin(), end.end(), equal);
    return found == why.end() ? why : std::string(found + std::ssize(end), why.end());
}

/// Opens one file. What the add-in said meanwhile is on stderr already.
OpenedFile openOne(DialogSession& dialog, const std::string& name) {
    const std::size_t designsBefore = dialog.session().designsOpenedByModule().size();
    const std::size_t messagesBefore = dialog.session().messages().size();
    const std::string errorBefore = lastError();
    pickAndOpen(dialog, name);
    OpenedFile file{.name = name, .opened = false, .why = {}};
    file.opened = dialog.session().designsOpenedByModule().size() > designsBefore;
    const std::string error = lastError();
    if (error != errorBefore) {
        file.why = withoutName(error, name);
    } else if (dialog.session().messages().size() == messagesBefore) {
        file.why = "the add-in did not open it";
    }
    return file;
}

/// Opens one file after the other, so that each failure has its own reason. Returns what went wrong
/// with the add-in itself: the files after that are not tried.
std::optional<Failure> openAll(DialogSession& dialog, const std::vector<std::string>& names,
                               std::vector<OpenedFile>& files) {
    try {
        for (const std::string& name : names) {
            files.push_back(openOne(dialog, name));
        }
        return std::nullopt;
    } catch (const Failure& failure) {
        return failure;
    }
}

/// Throws a `Failure` where a file was not opened. Of several each has a line of its own before.
void refuseUnopened(const std::vector<OpenedFile>& files) {
    std::vector<std::string> lines;
    for (const OpenedFile& each : files) {
        if (!each.opened) {
            lines.push_back(each.name + (each.why.empty() ? "" : ": " + each.why));
        }
    }
    if (lines.empty()) {
        return;
    }
    const std::string summary = "opened " + std::to_string(files.size() - lines.size()) + " of " +
                                std::to_string(files.size()) + " files";
    if (lines.size() == 1) {
        throw Failure(ExitCode::BadInput, summary + ": " + lines.front());
    }
    reportFailures(lines);
    throw Failure(ExitCode::BadInput, summary);
}

fs::path makeFolder(const std::string& named) {
    fs::path folder = fs::current_path() / host::fromUtf8(named);
    std::error_code failure;
    fs::create_directories(folder, failure);
    if (!fs::is_directory(folder)) {
        throw Failure(ExitCode::OutputFailed,
                      "--out " + named + ": " +
                          (failure ? failure.message() : std::string("not a directory")));
    }
    return folder;
}

/// Has "Open local file" bring files into the host, and saves each document that it opened. Where
/// not every file became a document, those that did are saved.
void runOpenLocal(const OpenLocalOptions& options) {
    const std::vector<std::string> names = absoluteNames(options.files);
    refuseRepeated(names);
    refuseSharedNames(names);
    const fs::path out = makeFolder(options.out);
    DialogSession dialog(options.addin, DataUse::Read, [&](host::SessionOptions& session) {
        waitInRealTime(session, options.timeout);
    });
    dialog.act([&](host::Session& session) { useProjects(session, options.data); });
    std::vector<OpenedFile> files;
    const std::optional<Failure> obstacle = openAll(dialog, names, files);
    reportWarnings(dialog.session().importWarnings());
    saveInFolder(dialog.session().designsOpenedByModule(), out);
    if (obstacle) {
        throw *obstacle;
    }
    refuseUnopened(files);
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
                    "Save the design files in this folder, by default the current one; it is\n"
                    "created if it is missing")
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
