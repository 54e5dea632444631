#include "workbench/cli/common_options.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/output/display_text.h"
#include "workbench/output/text_table.h"

#include "host/design/design_measures.h"
#include "host/session/design_summary.h"

#include <iomanip>
#include <iostream>
#include <locale>
#include <optional>
#include <sstream>

namespace workbench {
namespace {

struct InfoOptions {
    std::string file;
    ReadingOptions reading;
    bool measure = false;
};

std::string fixed(double value, int decimals) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(decimals) << value;
    return stream.str();
}

/// kg/cm3 as kg/m3, with one decimal.
std::string densityText(double density) {
    constexpr double kCubicCentimetres = 1e6;  // in a cubic metre
    return fixed(density * kCubicCentimetres, 1);
}

std::string nameOf(const host::MaterialUse& use) {
    const char* const onlyDensity = use.densityAssumed ? " (density assumed)" : "";
    return use.name + (use.nameAssumed ? " (assumed)" : onlyDensity);
}

/// The extents of a box, in mm.
std::string boxText(const std::optional<host::Box>& box) {
    constexpr double kMillimetres = 10;  // in a centimetre
    if (!box) {
        return "none";
    }
    std::string text;
    for (std::size_t axis = 0; axis < box->min.size(); ++axis) {
        text += (axis == 0 ? "" : " x ") +
                fixed((box->max.at(axis) - box->min.at(axis)) * kMillimetres, 1);
    }
    return text + " mm";
}

/// Why the design as a whole was not measured.
std::string obstacleText(const host::DesignMeasures& measures, bool shapesWereRead) {
    return "Measures     " +
           (shapesWereRead ? "unknown: " + printable(measures.unmeasured.front().reason)
                           : "not taken, and bodies not counted; --measure does both") +
           "\n";
}

/// What the whole design measures, or why it was not measured.
std::string measuresText(const host::DesignData& design, bool shapesWereRead) {
    const host::DesignMeasures measures = host::measureDesign(design);
    const bool isMeasured = measures.unmeasured.empty();
    // Bodies are counted with the shapes, and there are some even where one has no measures.
    std::string text = isMeasured || shapesWereRead
                           ? "Bodies       " + std::to_string(measures.bodies) + "\n"
                           : "";
    if (!isMeasured) {
        return text + obstacleText(measures, shapesWereRead);
    }
    text += "Area         " + fixed(measures.area, 2) + " cm\xC2\xB2\n";
    text += "Volume       " + fixed(measures.volume, 3) + " cm\xC2\xB3\n";
    text += "Mass         " + fixed(measures.mass, 3) + " kg\n";
    return text + "Box          " + boxText(measures.box) + "\n";
}

std::string materialTable(const std::vector<host::MaterialUse>& materials) {
    TextTable table({"Material", "Density [kg/m\xC2\xB3]", "Components"}, console::charset());
    for (const host::MaterialUse& use : materials) {
        table.add({nameOf(use), densityText(use.density), std::to_string(use.components)});
    }
    return table.text();
}

/// Prints what a file holds. The shapes of an assembly take most of the time: they are read where
/// they are measured, or where a body that cannot be built is to be a failure.
void runInfo(const InfoOptions& options) {
    const bool readsShapes = options.measure || options.reading.strict;
    const host::DesignData design = readsShapes ? readDesign(options.file, options.reading)
                                                : readTree(options.file, options.reading);
    const bool isLonePart = design.components.front().children.empty();
    const host::DesignSummary summary = host::summarize(design);
    std::cout << printable(summary.name) << "\n\n"
              << "Components   " << summary.components << "\n"
              << "  with shape " << summary.bodies << "\n"
              << "Occurrences  " << summary.occurrences << "\n"
              << "Levels       " << summary.levels << "\n"
              << "Length unit  " << (summary.unit.empty() ? "unknown" : printable(summary.unit))
              << "\n"
              << measuresText(design, readsShapes || isLonePart);
    if (!summary.materials.empty()) {
        std::cout << "\n" << materialTable(summary.materials);
    }
}

}  // namespace

void addInfoCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "info",
        "Print what a file holds: components, occurrences, levels, units, measures, materials");
    InfoOptions& options = optionsFor(command, runInfo);
    addFile(command, options.file);
    addReading(command, options.reading);
    command.add_flag(
        "--measure", options.measure,
        "Measure an assembly too, which takes longer: its shapes are built, and bodies\n"
        "that cannot be are warned of; a lone part is always measured");
}

}  // namespace workbench
