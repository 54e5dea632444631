#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/cli/input_files.h"
#include "workbench/cli/machine.h"
#include "workbench/cli/profile.h"
#include "workbench/cli/quiet.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/parts_options.h"
#include "workbench/commands/parts_run.h"
#include "workbench/commands/reader_share.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

namespace workbench {
namespace {

/// What is not about one list alone.
struct PartsCommand {
    const CLI::App* command = nullptr;
    PartsOptions words;  ///< without the profile
    std::vector<std::string> files;
    std::vector<std::string> outputs;
    std::string profile;
    bool noProfile = false;
    bool printProfile = false;
    int jobs = static_cast<int>(machine::processors());
};

const std::vector<std::string> kLists = {"columns", "sort", "units", "merge-by"};

/// In a profile these options have no meaning, or no other one than in the command line.
const ProfileKeys kProfileKeys = {
    .excluded = {"output", "profile", "no-profile", "print-profile", "quiet"}, .lists = kLists};

/// What is about the designs cannot be different for one output.
const ProfileKeys kOutputKeys = {.excluded = {"max-seconds", "max-memory", "max-occurrences",
                                              "material", "strict", "no-cache", "jobs"},
                                 .lists = kLists};

/// Where a profile is looked for that was not named: in the first folder that was given, beside the
/// first design.
std::vector<std::filesystem::path> profileFolders(const PartsCommand& options,
                                                  const std::vector<std::string>& files) {
    namespace fs = std::filesystem;
    std::vector<fs::path> folders;
    std::error_code ignored;
    if (const fs::path given = host::fromUtf8(options.files.front());
        fs::is_directory(given, ignored)) {
        folders.push_back(given);
    }
    folders.push_back(host::fromUtf8(files.front()).parent_path());
    return folders;
}

/// The profile that was named, else one that is found; one without a file where there is none.
Profile findProfile(const PartsCommand& options, const std::vector<std::string>& files) {
    if (!options.profile.empty()) {
        return readProfile(options.profile);
    }
    if (options.noProfile || options.files.front() == "-") {
        return {};
    }
    for (const std::filesystem::path& folder : profileFolders(options, files)) {
        const std::filesystem::path file = folder / kProfileName;
        std::error_code ignored;
        if (std::filesystem::exists(file, ignored)) {
            return readProfile(host::toUtf8(file));
        }
    }
    return {};
}

/// Without this line the options of a profile that was not named would come as a surprise.
void reportFoundProfile(const PartsCommand& options, const Profile& profile) {
    if (options.profile.empty() && !profile.file.empty() && !isQuiet()) {
        std::cerr << "profile: " << printable(profile.file) << "\n";
    }
}

/// The options of one output, made of the command line, what the profile has for the output, and
/// its other keys: the first that has an option decides.
class Choice {
public:
    Choice(const CLI::App& given, const Profile& profile, std::vector<ProfileEntry> output = {})
        : given_(given), profile_(profile), output_(std::move(output)) {
        addPartsOptions(app_, words_);
        addJobs(app_, jobs_);
        for (CLI::Option* const option : app_.get_options()) {
            const CLI::Option* const same = given.get_option_no_throw(option->get_name());
            if (same != nullptr && same->count() > 0) {
                option->add_result(same->results());
                option->run_callback();
            }
        }
        applyProfile(app_, output_, kOutputKeys, profile.file);
        applyProfile(app_, profile.entries, kProfileKeys, profile.file);
    }

    static void addJobs(CLI::App& command, int& jobs) {
        command
            .add_option("--jobs", jobs,
                        "Designs to read at once, each in a reader of its own; by default one for\n"
                        "each processor. They share the processors and the machine's memory")
            ->type_name("COUNT")
            ->check(CLI::Range(1, 1024));
    }

    /// What is to be listed and how. What makes no sense is refused with the line of the profile
    /// that it comes from.
    [[nodiscard]] ListTask task(const std::string& output) const {
        try {
            return {.request = requestOf(words_),
                    .format = formatOf(words_, output),
                    .output = output,
                    .comparesShapes = words_.comparesShapes};
        } catch (const Failure& failure) {
            refuseWithLine(failure);
            throw;
        }
    }

    [[nodiscard]] const PartsOptions& words() const { return words_; }
    [[nodiscard]] int jobs() const { return jobs_; }
    [[nodiscard]] const CLI::App& app() const { return app_; }

private:
    /// The message of a failure begins with the option that it is about.
    void refuseWithLine(const Failure& failure) const {
        const std::string line = failure.what();
        for (const std::vector<ProfileEntry>* const entries : {&output_, &profile_.entries}) {
            for (const ProfileEntry& entry : *entries) {
                const CLI::Option* const given = given_.get_option_no_throw("--" + entry.key);
                if (line.starts_with("--" + entry.key + " ") &&
                    (given == nullptr || given->count() == 0)) {
                    throw Failure(
                        ExitCode::BadInput,
                        profile_.file + ":" + std::to_string(entry.line) + ": " + line.substr(2));
                }
            }
        }
    }

    const CLI::App& given_;
    const Profile& profile_;
    std::vector<ProfileEntry> output_;
    CLI::App app_{"", "parts"};
    PartsOptions words_;
    int jobs_ = static_cast<int>(machine::processors());
};

constexpr const char* kStdout = "-";

/// What goes where: "--output" takes the place of all outputs in the profile, whose mistakes are
/// refused all the same.
std::vector<ListTask> tasksOf(const PartsCommand& options, const Profile& profile) {
    std::vector<ListTask> tasks;
    const Choice common(*options.command, profile);
    for (const std::string& output : options.outputs) {
        tasks.push_back(common.task(output == kStdout ? "" : output));
    }
    for (const ProfileOutput& output : profile.outputs) {
        const Choice choice(*options.command, profile, output.entries);
        ListTask task = choice.task(output.file == kStdout ? "" : output.file);
        if (options.outputs.empty()) {
            tasks.push_back(std::move(task));
        }
    }
    if (tasks.empty()) {
        tasks.push_back(common.task(""));
    }
    return tasks;
}

/// What holds, in a form that reads back the same.
void printProfile(const PartsCommand& options, const Profile& profile) {
    const Choice common(*options.command, profile);
    std::cout << profileText(common.app(), kProfileKeys);
    std::vector<ProfileOutput> outputs =
        options.outputs.empty() ? profile.outputs : std::vector<ProfileOutput>();
    for (const std::string& file : options.outputs) {
        outputs.push_back({.file = file, .entries = {}, .line = 0});
    }
    for (const ProfileOutput& output : outputs) {
        std::cout << "\n[[output]]\n" << outputText(output);
    }
}

void runParts(const PartsCommand& options) {
    PartsRun run;
    run.files = expandInputs(options.files, run.unreadable);
    if (run.files.empty()) {
        refuseObstacles(ExitCode::BadInput, run.unreadable);
    }
    const Profile profile = findProfile(options, run.files);
    run.tasks = tasksOf(options, profile);
    reportFoundProfile(options, profile);
    if (options.printProfile) {
        printProfile(options, profile);
        return;
    }
    const Choice common(*options.command, profile);
    run.reading = common.words().reading;
    run.jobs = std::min(static_cast<std::size_t>(common.jobs()), run.files.size());
    run.reading.limits =
        shareOf(run.reading.limits, {.readers = run.jobs,
                                     .processors = machine::processors(),
                                     .memoryMegabytes = machine::memoryMegabytes()});
    checkOutputs(run);
    listParts(run);
}

void addFiles(CLI::App& command, PartsCommand& options) {
    command
        .add_option("FILE", options.files,
                    "STEP files (.step, .stp, .p21), IGES files, design files; folders, with all\n"
                    "that are in them and below; or patterns with *, ? and **")
        ->required();
    Choice::addJobs(command, options.jobs);
}

void addOutputs(CLI::App& command, PartsCommand& options) {
    command
        .add_option(
            "--output", options.outputs,
            "Write the list into this file instead, which is replaced where it exists; its\n"
            "folder is created. {stem} in the name is the design's name without its\n"
            "ending, {name} with it, {dir} its folder. May be repeated. - prints the list")
        ->type_name("FILE")
        ->allow_extra_args(false);
    command
        .add_option("--profile", options.profile,
                    "Take options from this file; by default from tarnix.toml in the first FILE,\n"
                    "where that is a folder, or beside the first design. Options given here win")
        ->type_name("FILE.toml");
    command.add_flag("--no-profile", options.noProfile, "Do not look for tarnix.toml");
    command.add_flag("--print-profile", options.printProfile,
                     "Print the options that hold, as a profile, and read no design");
}

}  // namespace

void addPartsCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "parts", "List the parts over all levels, with total quantities, to order and build from");
    PartsCommand& options = optionsFor(command, runParts);
    options.command = &command;
    addFiles(command, options);
    addPartsOptions(command, options.words);
    addOutputs(command, options);
    command.footer(columnsHelp());
}

}  // namespace workbench
