#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/addin_session.h"
#include "workbench/dialogs/run_folder.h"
#include "workbench/serve/serve.h"

#include "host/base/utf8_path.h"

#include <chrono>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

namespace workbench {
namespace {

namespace fs = std::filesystem;

struct ServeOptions {
    std::string file;
    int port = 0;
    std::string data;  ///< folder of the user's projects; empty: the program's own
    AddinChoice addin;
    ReadingOptions reading;
};

/// As the data folder names its files; a link that is the file itself stays one.
fs::path absolutePath(const std::string& name) {
    if (name.empty()) {
        return {};
    }
    const fs::path file = fs::absolute(host::fromUtf8(name)).lexically_normal();
    return fs::weakly_canonical(file.parent_path()) / file.filename();
}

/// The user's data: the named folder, else the program's own, which begins with one project.
fs::path dataFolder(const ServeOptions& options) {
    if (options.data.empty()) {
        const fs::path projects = userSession(options.addin).home / "Projects";
        fs::create_directories(projects / "Local");
        return fs::canonical(projects);
    }
    const fs::path folder = host::fromUtf8(options.data);
    std::error_code ignored;
    if (!fs::is_directory(folder, ignored)) {
        refuse("--data " + options.data + ": not a directory");
    }
    return fs::canonical(folder);
}

/// The add-in works in the data home itself, so that what the user configures on the page stays.
host::SessionOptions servedSession(const AddinChoice& choice) {
    constexpr std::chrono::seconds kLockTimeout(3);
    host::SessionOptions session = userSession(choice);
    session.lockTimeout = kLockTimeout;
    session.unloadAtEnd = kUnloadsAddin;
    session.system.sleepTakesTime = true;
    // A module places its palettes by the host's window; the page has them at its nearer edges.
    session.system.windows = std::vector<host::WindowShown>{
        {.title = "Autodesk Fusion 360",
         .inside = {.left = 0, .top = 0, .right = 1280, .bottom = 800}}};
    session.host.clock = host::clock::ClockMode::Real;
    return session;
}

host::DesignData emptyDesign() {
    host::DesignData design;
    design.name = "Untitled";
    design.components.emplace_back().name = design.name;
    return design;
}

void runServe(const ServeOptions& options) {
    checkAddin(options.addin);
    serve::ServeRequest request;
    request.port = options.port;
    request.data = dataFolder(options);
    request.given = absolutePath(options.file);
    request.givenName = options.file;
    request.session = servedSession(options.addin);
    request.read = [reading = options.reading](const fs::path& file,
                                               const host::ImportProgress& progress,
                                               std::vector<host::ReadingWarning>& warnings) {
        return readReporting(host::toUtf8(file), reading, progress, warnings);
    };
    request.design = options.file.empty()
                         ? emptyDesign()
                         : readDesign(options.file, options.reading, &request.warnings);
    serve::serve(std::move(request));
}

}  // namespace

void addServeCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "serve", "Show the host in the browser, with the assembly in 3D and the add-in's dialogs");
    ServeOptions& options = optionsFor(command, runServe);
    command.add_option("FILE", options.file, "The design to open, by default a new one");
    constexpr int kLargestPort = 65535;
    command
        .add_option("--port", options.port,
                    "The port of 127.0.0.1 to listen on, by default any that is free")
        ->check(CLI::Range(0, kLargestPort));
    command
        .add_option("--data", options.data,
                    "A folder whose folders are projects: what the page opens and saves is there;\n"
                    "by default the program's own")
        ->type_name("DIR");
    addAddin(command, options.addin);
    addReading(command, options.reading);
    command.footer(
        "Prints the address to open, which has a secret token in it. Ctrl-C ends the program; "
        "what\n"
        "was not saved on the page is lost then.");
}

}  // namespace workbench
