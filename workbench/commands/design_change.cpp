#include "workbench/commands/design_change.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/dialog_session.h"
#include "workbench/output/display_text.h"
#include "workbench/output/save_target.h"

#include "host/base/utf8_path.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <iostream>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using Names = std::vector<std::string>;

/// Does its work on the open design; returns the line that tells what was done.
using Work = std::function<std::string(DialogRun&)>;

/// Opens the design, has the work done, and saves what came of it.
void change(const DesignCommandOptions& options, const Work& work) {
    const std::filesystem::path target = saveTarget(options.file, options.saveFile);
    host::DesignData design = readDesign(options.file, options.limits);
    DialogRun run(options.addin);
    run.session().openDesign(std::move(design), host::fromUtf8(options.file));
    const std::string done = work(run);
    run.save(target);
    std::cout << done << "\nSaved: " << printable(host::toUtf8(target)) << "\n";
    if (!std::cout.flush()) {
        throw Failure(ExitCode::OutputFailed, "cannot write to stdout");
    }
}

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

/// The names that are wanted, each once: what is picked twice is picked no more.
Names wantedOccurrences(const DesignCommandOptions& options) {
    Names wanted;
    for (const std::string& each : options.occurrences) {
        if (std::find(wanted.begin(), wanted.end(), each) == wanted.end()) {
            wanted.push_back(each);
        }
    }
    return wanted.empty() ? topOccurrences() : wanted;
}

std::string moveToOrigin(DialogRun& run, const DesignCommandOptions& options) {
    const Names wanted = wantedOccurrences(options);
    if (wanted.empty()) {
        throw Failure(ExitCode::BadUsage, options.file + ": has no occurrences that could move");
    }
    run.open(kMoveToOriginCommand);
    run.act([&](host::Session& session) {
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

/// How many curves of a component's sketches are construction geometry.
std::size_t countConstruction(const host::ComponentData& component) {
    std::size_t count = 0;
    for (const host::SketchData& sketch : component.sketches) {
        count += static_cast<std::size_t>(
            std::count_if(sketch.curves.begin(), sketch.curves.end(),
                          [](const host::SketchCurveData& curve) { return curve.construction; }));
    }
    return count;
}

std::size_t countConstruction(const host::DesignData& design) {
    std::size_t count = 0;
    for (const host::ComponentData& component : design.components) {
        count += countConstruction(component);
    }
    return count;
}

void pressInEachSketch(host::Session& session, const host::DesignData& design) {
    for (std::size_t index = 0; index < design.components.size(); ++index) {
        for (std::size_t sketch = 0; sketch < design.components[index].sketches.size(); ++sketch) {
            session.editSketch(index, sketch);
            session.press(kProjectedEntitiesCommand);
        }
    }
    session.leaveSketch();
}

std::string projectToConstruction(DialogRun& run) {
    const host::DesignData before = run.session().design();
    run.act([&](host::Session& session) { pressInEachSketch(session, before); });
    return "Curves made construction geometry: " +
           std::to_string(countConstruction(run.session().design()) - countConstruction(before));
}

}  // namespace

void runMoveToOrigin(const DesignCommandOptions& options) {
    change(options, [&](DialogRun& run) { return moveToOrigin(run, options); });
}

void runProjectToConstruction(const DesignCommandOptions& options) {
    change(options, projectToConstruction);
}

}  // namespace workbench
