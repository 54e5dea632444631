#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/addin_run.h"
#include "workbench/dialogs/input_edits.h"
#include "workbench/output/run_step.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace workbench {
namespace {

constexpr const char* kRunHelp =
    "Opens FILE, calls \"run\", presses the button, uses the inputs in the order given, and "
    "prints\n"
    "what each step led to and the dialog as it is then; closes the dialog, with --ok by OK, and\n"
    "calls \"stop\". ADDIN is the folder of an add-in, or a module built for this host. The "
    "session\n"
    "is private: the design is not saved, and a message is answered by its first button.\n"
    "--set takes a text for a text field, an item for a list, true or false for a check box,\n"
    "click for a button, the path of a component for a selection, a row number for a table,\n"
    "expanded or collapsed for a group, and active for a tab. INPUT is an id, or\n"
    "TABLE[ROW,COLUMN] for a cell.";

struct RunOptions {
    std::string addin;
    std::string file;     ///< the design to open; empty: a new one
    std::string command;  ///< empty: none is pressed
    std::vector<std::string> edits;
    bool ok = false;
    bool expectsNoError = false;
    std::string format = "text";
    ReadingOptions reading;
};

/// The first time that the add-in went wrong, and how often it did besides; an empty string for
/// never.
std::string faultsOf(const std::vector<RunStep>& steps) {
    std::size_t faults = 0;
    std::string first;
    for (const RunStep& each : steps) {
        faults += faultsIn(each);
        first = first.empty() ? firstFault(each) : first;
    }
    return faults > 1 ? first + ", and " + std::to_string(faults - 1) + " more" : first;
}

/// The steps of one run, printed one by one: the add-in may take the program down with it.
class PrintedRun {
public:
    PrintedRun(AddinRun& run, bool asJson) : run_(run), asJson_(asJson) {}
    PrintedRun(const PrintedRun&) = delete;
    PrintedRun& operator=(const PrintedRun&) = delete;
    ~PrintedRun() {
        if (asJson_) {
            std::cout << workbench::asJson(steps_);
        }
    }

    /// Does one step, looks at what it led to and prints that, also where it cannot be done to its
    /// end.
    void step(const std::string& name, const std::function<void(RunStep&)>& action,
              const std::function<void(RunStep&)>& look) {
        RunStep& step = steps_.emplace_back();
        step.name = name;
        if (!asJson_) {
            std::cout << step.name << std::endl;
        }
        try {
            run_.act(step, {.action = [&] { action(step); }, .look = [&] { look(step); }});
        } catch (const Failure& failure) {
            print(step);
            throw explained(failure);
        }
        print(step);
    }

    [[nodiscard]] const std::vector<RunStep>& steps() const { return steps_; }

private:
    /// What could not be done may follow from what went wrong before.
    [[nodiscard]] Failure explained(const Failure& failure) const {
        const std::string before = faultsOf(steps_);
        return before.empty()
                   ? failure
                   : Failure(failure.code(), failure.what() + ("; before that " + before));
    }

    void print(const RunStep& step) const {
        if (!asJson_) {
            std::cout << asText(step) << std::flush;
        }
    }

    AddinRun& run_;
    bool asJson_;
    std::vector<RunStep> steps_;
};

void call(RunStep& step, const std::function<bool()>& entry) {
    step.failed = !entry();
    step.outcome = step.failed ? "returned false" : "returned true";
}

/// After the last step before the dialog is closed: what it shows, and what it previews.
void look(AddinRun& run, RunStep& step) {
    step.changes = run.changes();
    if (run.session().dialogOpen()) {
        step.dialog = host::readDialog();
    }
}

void start(PrintedRun& printed, AddinRun& run, bool isLast) {
    run.rememberDesign();
    printed.step(
        "run", [&](RunStep& step) { call(step, [&] { return run.session().run(); }); },
        [&](RunStep& step) { isLast ? look(run, step) : void(step.changes = run.changes()); });
    run.rememberDesign();
}

void pressButton(PrintedRun& printed, AddinRun& run, const std::string& command, bool isLast) {
    printed.step(
        "press " + command, [&](RunStep&) { run.session().press(command); },
        [&](RunStep& step) {
            if (!run.session().dialogOpen()) {
                step.outcome = "no dialog is open";
            }
            if (isLast) look(run, step);
        });
}

void useInputs(PrintedRun& printed, AddinRun& run, const std::vector<InputEdit>& edits,
               const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < edits.size(); ++i) {
        printed.step(
            "set " + names[i], [&](RunStep&) { editInput(run.session(), edits[i]); },
            [&](RunStep& step) {
                if (i + 1 == edits.size()) look(run, step);
            });
    }
}

/// Closes what is open, and stops the add-in.
void finish(PrintedRun& printed, AddinRun& run, bool accepts) {
    host::Session& session = run.session();
    const auto lookAt = [&](RunStep& step) { look(run, step); };
    if (accepts) {
        printed.step(
            "ok", [&](RunStep&) { session.ok(); }, lookAt);
    }
    if (session.dialogOpen()) {
        printed.step(
            "cancel", [&](RunStep&) { session.cancel(); }, lookAt);
    }
    if (session.exports("stop") && !session.isStopped()) {
        printed.step(
            "stop", [&](RunStep& step) { call(step, [&] { return session.stop(); }); },
            [](RunStep&) {});
    }
}

/// Uses an add-in as its user would, and prints what happens.
void runRun(const RunOptions& options) {
    std::vector<InputEdit> edits(options.edits.size());
    std::ranges::transform(options.edits, edits.begin(), parseInputEdit);
    std::optional<host::DesignData> design;
    if (!options.file.empty()) {
        design = readDesign(options.file, options.reading);
    }
    AddinRun run(options.addin);
    if (design) {
        run.session().openDesign(std::move(*design), host::fromUtf8(options.file));
    }
    PrintedRun printed(run, options.format == "json");
    start(printed, run, options.command.empty() && edits.empty());
    if (!options.command.empty()) {
        pressButton(printed, run, options.command, edits.empty());
    }
    useInputs(printed, run, edits, options.edits);
    finish(printed, run, options.ok);
    const std::string faults = faultsOf(printed.steps());
    if (options.expectsNoError && !faults.empty()) {
        throw Failure(ExitCode::BadInput, faults);
    }
}

}  // namespace

void addRunCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "run", "Load any add-in or module for this host, use it, and print what happens");
    RunOptions& options = optionsFor(command, runRun);
    command.add_option("ADDIN", options.addin, "The folder of an add-in, or a module")->required();
    command.add_option("FILE", options.file, "The design to open, by default a new one");
    command.add_option("--press", options.command, "Press the button of this command")
        ->type_name("COMMAND");
    command
        .add_option("--set", options.edits,
                    "Use an input of the dialog; several are used in this order")
        ->type_name("INPUT=VALUE")
        ->allow_extra_args(false);
    command.add_flag("--ok", options.ok, "Press OK, and print what changed");
    command.add_flag("--expect-no-error", options.expectsNoError,
                     "End with status 1 where the add-in threw something, misused the host, or\n"
                     "returned false from \"run\" or \"stop\"");
    addFormat(command, options.format, {"text", "json"});
    addReading(command, options.reading);
    command.footer(kRunHelp);
}

}  // namespace workbench
