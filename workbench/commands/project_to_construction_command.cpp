#include "workbench/commands/commands.h"
#include "workbench/commands/design_change.h"
#include "workbench/dialogs/addin_ids.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace workbench {
namespace {

std::size_t countConstruction(const host::SketchData& sketch) {
    return static_cast<std::size_t>(
        std::ranges::count(sketch.curves, true, &host::SketchCurveData::construction));
}

/// How many curves of a design's sketches are construction geometry.
std::size_t countConstruction(const host::DesignData& design) {
    std::size_t count = 0;
    for (const host::ComponentData& component : design.components) {
        for (const host::SketchData& sketch : component.sketches) {
            count += countConstruction(sketch);
        }
    }
    return count;
}

/// The command works on the sketch under edit.
void pressInEachSketch(host::Session& session, const host::DesignData& design) {
    for (std::size_t index = 0; index < design.components.size(); ++index) {
        for (std::size_t sketch = 0; sketch < design.components[index].sketches.size(); ++sketch) {
            session.editSketch(index, sketch);
            session.press(kProjectedEntitiesCommand);
        }
    }
    session.leaveSketch();
}

std::string projectToConstruction(DialogSession& dialog) {
    const host::DesignData before = dialog.session().design();
    dialog.act([&](host::Session& session) { pressInEachSketch(session, before); });
    return "Curves made construction geometry: " +
           std::to_string(countConstruction(dialog.session().design()) - countConstruction(before));
}

void runProjectToConstruction(const DesignChangeOptions& options) {
    changeDesign(options, projectToConstruction);
}

}  // namespace

void addProjectToConstructionCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "project-to-construction",
        "Make projected curves construction geometry in all sketches, with\n"
        "\"Projected Entities As Construction\", and save");
    addDesignChange(command, optionsFor(command, runProjectToConstruction));
}

}  // namespace workbench
