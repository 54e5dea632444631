#include "workbench/cli/exit_code.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_change.h"
#include "workbench/dialogs/addin_ids.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace workbench {
namespace {

using namespace adsk::core;
using Names = std::vector<std::string>;

struct MoveToOriginOptions {
    DesignChangeOptions design;
    Names occurrences;    ///< full path names; none: all directly under the root
    bool ground = false;  ///< grounds what was moved
};

/// The names of the occurrences directly under the root component.
Names topOccurrences() {
    const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
    const Ptr<adsk::fusion::Occurrences> all = design->rootComponent()->occurrences();
    Names names;
    for (std::size_t index = 0; index < all->count(); ++index) {
        names.push_back(all->item(index)->fullPathName());
    }
    return names;
}

/// Each name once: to pick an occurrence again would take it out of the selection.
Names wantedOccurrences(const MoveToOriginOptions& options) {
    Names wanted;
    for (const std::string& each : options.occurrences) {
        if (std::ranges::find(wanted, each) == wanted.end()) {
            wanted.push_back(each);
        }
    }
    return wanted.empty() ? topOccurrences() : wanted;
}

std::string moveToOrigin(DialogSession& dialog, const MoveToOriginOptions& options) {
    const Names wanted = wantedOccurrences(options);
    if (wanted.empty()) {
        refuse(options.design.file + ": has no occurrences to move");
    }
    dialog.open(kMoveToOriginCommand);
    dialog.act([&](host::Session& session) {
        for (const std::string& path : wanted) {
            session.pick(path);
        }
        if (options.ground) {
            session.click(kGroundInput);
        }
        session.ok();
    });
    return "Moved to the origin: " + std::to_string(wanted.size());
}

void runMoveToOrigin(const MoveToOriginOptions& options) {
    changeDesign(options.design,
                 [&](DialogSession& dialog) { return moveToOrigin(dialog, options); });
}

}  // namespace

void addMoveToOriginCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "move-to-origin", "Place occurrences at the origin with \"Move To Origin\", and save");
    MoveToOriginOptions& options = optionsFor(command, runMoveToOrigin);
    addDesignChange(command, options.design);
    command
        .add_option("--occurrence", options.occurrences,
                    "An occurrence by its path, as in \"Gearbox:1+Bolt:2\"; may be repeated. By\n"
                    "default all occurrences directly under the root")
        ->type_name("PATH")
        ->allow_extra_args(false);
    command.add_flag("--ground", options.ground, "Ground them as well");
}

}  // namespace workbench
