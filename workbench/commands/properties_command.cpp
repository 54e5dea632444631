#include "workbench/commands/properties_command.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/dialogs/properties_dialog.h"
#include "workbench/output/display_text.h"
#include "workbench/output/save_target.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <map>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using adsk::fusion::Component;
using adsk::fusion::Occurrence;
using Value = std::pair<std::string, std::string>;

[[noreturn]] void refuse(const std::string& line) { throw Failure(ExitCode::BadUsage, line); }

std::vector<Value> readValues(const PropertiesOptions& options) {
    if (!options.values.empty() && !options.save) {
        refuse("--set needs --save: without it nothing would be kept");
    }
    std::vector<Value> values;
    for (const std::string& each : options.values) {
        const std::size_t end = each.find('=');
        if (end == std::string::npos || end == 0) {
            refuse("--set " + each + ": a value is given as NAME=VALUE");
        }
        values.emplace_back(each.substr(0, end), each.substr(end + 1));
    }
    return values;
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
    const Ptr<SelectionCommandInput> input = session.input("QEMA_selectComponent");
    return input->selection(0)->entity();
}

/// Where an entity stands in the browser tree; the root component under its name.
std::string pathOf(const Ptr<Base>& entity) {
    if (const Ptr<Occurrence> occurrence = entity) {
        return occurrence->fullPathName();
    }
    const Ptr<Component> component = entity;
    return component->name();
}

/// Puts all values in; the last one of each line by its id.
std::map<std::string, std::string> setValues(host::Session& session,
                                             const std::vector<Value>& values) {
    std::map<std::string, std::string> asked;
    for (const auto& [name, value] : values) {
        asked[setProperty(session, name, value)] = value;
    }
    return asked;
}

/// What the design does not take, such as another name for its root component, is not skipped:
/// the add-in tells nobody of it.
void refuseUntaken(const std::map<std::string, std::string>& asked,
                   const std::vector<ShownProperty>& held) {
    for (const ShownProperty& each : held) {
        const auto found = asked.find(each.id);
        if (found != asked.end() && found->second != each.value) {
            throw Failure(ExitCode::AddinFailed, "--set \"" + each.name + "=" + found->second +
                                                     "\": the design would hold \"" + each.value +
                                                     "\" instead");
        }
    }
}

/// Accepts the dialog, and opens it again on the same component: its path changes with its name.
void acceptAndReopen(DialogRun& run) {
    const Ptr<Base> entity = picked(run.session());
    run.act([](host::Session& session) { session.ok(); });
    run.open(kPropertiesCommand);
    run.act([&](host::Session& session) { session.pick(pathOf(entity)); });
}

std::string asLines(const std::string& component, const std::vector<ShownProperty>& properties) {
    std::vector<Value> lines = {{"Component", component}};
    for (const ShownProperty& each : properties) {
        lines.emplace_back(each.name, each.value);
    }
    std::size_t width = 0;
    for (Value& line : lines) {
        line = {printable(line.first), printable(line.second)};
        width = std::max(width, displayWidth(line.first));
    }
    std::string text;
    for (const auto& [name, value] : lines) {
        std::string line = name + std::string(width - displayWidth(name) + 2, ' ') + value;
        line.erase(line.find_last_not_of(' ') + 1);
        text += line + "\n";
    }
    return text;
}

}  // namespace

void runProperties(const PropertiesOptions& options) {
    const std::vector<Value> values = readValues(options);
    const std::filesystem::path target =
        options.save ? saveTarget(options.file, options.saveFile) : std::filesystem::path();
    host::DesignData design = readDesign(options.file, options.limits);
    DialogRun run(options.addin);
    run.act([&](host::Session& session) { openDesign(session, std::move(design), options); });
    run.open(kPropertiesCommand);
    run.act([&](host::Session& session) { session.pick(options.component); });
    if (options.save) {
        std::map<std::string, std::string> asked;
        run.act([&](host::Session& session) { asked = setValues(session, values); });
        acceptAndReopen(run);
        refuseUntaken(asked, readProperties(run.session()));
    }
    const std::string text = asLines(pathOf(picked(run.session())), readProperties(run.session()));
    run.act([](host::Session& session) { session.cancel(); });
    if (options.save) {
        run.save(target);
    }
    std::cout << text;
    if (options.save) {
        std::cout << "\nSaved: " << printable(host::toUtf8(target)) << "\n";
    }
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

}  // namespace workbench
