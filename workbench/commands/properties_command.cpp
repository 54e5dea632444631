#include "workbench/cli/common_options.h"
#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/dialogs/properties_dialog.h"
#include "workbench/output/design_files.h"
#include "workbench/output/display_text.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

struct PropertyEdit {
    std::string name;
    std::string value;
};

struct PropertiesOptions {
    std::string file;
    std::string component;  ///< full path name; empty: the root component
    std::vector<PropertyEdit> edits;
    std::optional<std::string> saveFile;  ///< accepts the dialog and saves, see `saveTarget`
    std::string data;                     ///< folder of the user's projects; empty: there are none
    AddinChoice addin;
    ReadingOptions reading;
};

std::vector<PropertyEdit> parseEdits(const std::vector<std::string>& values) {
    std::vector<PropertyEdit> edits;
    for (const std::string& each : values) {
        const std::size_t end = each.find('=');
        if (end == std::string::npos || end == 0) {
            refuse("--set " + each + ": expected NAME=VALUE");
        }
        edits.push_back({.name = each.substr(0, end), .value = each.substr(end + 1)});
    }
    return edits;
}

/// Opens the design as the file that it was read from, which has a place in the user's data where
/// there is some.
void openDesign(host::Session& session, host::DesignData design, const PropertiesOptions& options) {
    if (!options.data.empty()) {
        session.useData({host::fromUtf8(options.data), "", {}});
    }
    session.openDesign(std::move(design), host::fromUtf8(options.file));
}

Ptr<Base> picked(const host::Session& session) {
    const Ptr<SelectionCommandInput> input = session.input(kComponentSelection);
    return input->selection(0)->entity();
}

/// The path of an entity in the browser tree; of the root component its name.
std::string pathOf(const Ptr<Base>& entity) {
    if (const Ptr<Occurrence> occurrence = entity) {
        return occurrence->fullPathName();
    }
    const Ptr<Component> component = entity;
    return component->name();
}

/// Makes all edits; returns the last value of each line by its id.
std::map<std::string, std::string> makeEdits(host::Session& session,
                                             const std::vector<PropertyEdit>& edits) {
    std::map<std::string, std::string> asked;
    for (const PropertyEdit& edit : edits) {
        asked[setProperty(session, edit.name, edit.value)] = edit.value;
    }
    return asked;
}

/// The add-in does not report what the design does not take, such as another name for its root
/// component.
void refuseUntaken(const std::map<std::string, std::string>& asked,
                   const std::vector<PropertyLine>& held) {
    for (const PropertyLine& each : held) {
        const auto found = asked.find(each.id);
        if (found != asked.end() && found->second != each.value) {
            throw Failure(ExitCode::AddinFailed, "--set \"" + each.name + "=" + found->second +
                                                     "\": the design would hold \"" + each.value +
                                                     "\" instead");
        }
    }
}

/// Accepts the dialog, and opens it again on the same component: its path changes with its name.
void acceptAndReopen(DialogSession& dialog) {
    const Ptr<Base> entity = picked(dialog.session());
    dialog.act([](host::Session& session) { session.ok(); });
    dialog.open(kPropertiesCommand);
    dialog.act([&](host::Session& session) { session.pick(pathOf(entity)); });
}

/// Makes the edits in the open dialog, which is then open on the changed component.
void editInDialog(DialogSession& dialog, const std::vector<PropertyEdit>& edits) {
    std::map<std::string, std::string> asked;
    dialog.act([&](host::Session& session) { asked = makeEdits(session, edits); });
    acceptAndReopen(dialog);
    refuseUntaken(asked, readProperties(dialog.session()));
}

std::string asLines(const std::string& component, const std::vector<PropertyLine>& properties) {
    std::vector<PropertyLine> lines = {{.id = "", .name = "Component", .value = component}};
    lines.insert(lines.end(), properties.begin(), properties.end());
    std::size_t width = 0;
    for (const PropertyLine& line : lines) {
        width = std::max(width, displayWidth(printable(line.name)));
    }
    std::string all;
    for (const PropertyLine& each : lines) {
        const std::string name = printable(each.name);
        std::string line = name + std::string(width - displayWidth(name) + 2, ' ');
        line += printable(each.value);
        line.erase(line.find_last_not_of(' ') + 1);
        all += line + "\n";
    }
    return all;
}

/// Picks a component in the add-in's dialog and prints what the dialog shows of it. With "--save"
/// the edits are made first and the dialog is accepted; what is printed is then what the design
/// holds. Where any of this fails, or the design holds another value than one that was set, nothing
/// is printed and no design saved.
void runProperties(const PropertiesOptions& options) {
    if (!options.edits.empty() && !options.saveFile) {
        refuse("--set requires --save: without it the edits are lost when the dialog closes");
    }
    const SaveTarget target =
        options.saveFile ? saveTarget(options.file, *options.saveFile) : SaveTarget();
    host::DesignData design = readDesign(options.file, options.reading);
    DialogSession dialog(options.addin);
    dialog.act([&](host::Session& session) { openDesign(session, std::move(design), options); });
    dialog.open(kPropertiesCommand);
    dialog.act([&](host::Session& session) { session.pick(options.component); });
    if (options.saveFile) {
        editInDialog(dialog, options.edits);
    }
    const std::string lines =
        asLines(pathOf(picked(dialog.session())), readProperties(dialog.session()));
    dialog.act([](host::Session& session) { session.cancel(); });
    StagedFiles files;
    if (options.saveFile) {
        files.addDesign(target.path, dialog.session().design(), target.before);
    }
    files.check();
    std::cout << lines;
    if (options.saveFile) {
        std::cout << "\n";
        reportSaved(std::cout, target.name);
    }
    flushOutput();
    files.commit();
}

}  // namespace

void addPropertiesCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "properties", "Print a component's properties, or edit them, in the add-in's dialog");
    PropertiesOptions& options = optionsFor(command, runProperties);
    addFile(command, options.file);
    command
        .add_option("--component", options.component,
                    "The component to pick, by the path of an occurrence, as in\n"
                    "\"Gearbox:1+Bolt:2\"; by default the root component")
        ->type_name("PATH");
    command
        .add_option_function<std::vector<std::string>>(
            "--set",
            [&options](const std::vector<std::string>& values) {
                options.edits = parseEdits(values);
            },
            "Set a property of the dialog; may be repeated. NAME is its label in the dialog, as\n"
            "in \"--set 'BOM Structure=Buy'\". Requires --save")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    addSave(command, options.saveFile,
            "Press OK, which writes all properties of the dialog into the design, and save that\n"
            "as a design file: by default the one that was opened, else a new one beside FILE");
    command
        .add_option("--data", options.data,
                    "A folder whose folders are projects; FILE in one of them has a full path")
        ->type_name("DIR");
    addAddin(command, options.addin);
    addReading(command, options.reading);
}

}  // namespace workbench
