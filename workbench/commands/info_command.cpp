#include "workbench/cli/common_options.h"
#include "workbench/commands/commands.h"
#include "workbench/commands/design_reading.h"
#include "workbench/output/display_text.h"
#include "workbench/output/text_table.h"

#include "host/session/design_summary.h"

#include <iomanip>
#include <iostream>
#include <locale>
#include <sstream>

namespace workbench {
namespace {

struct InfoOptions {
    std::string file;
    host::ReadingLimits limits;
};

/// kg/cm3 as kg/m3, with one decimal.
std::string densityText(double density) {
    constexpr double kCubicCentimetres = 1e6;  // in a cubic metre
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::fixed << std::setprecision(1) << density * kCubicCentimetres;
    return stream.str();
}

std::string materialTable(const std::vector<host::MaterialUse>& materials) {
    TextTable table({"Material", "Density [kg/m\xC2\xB3]", "Components"});
    for (const host::MaterialUse& use : materials) {
        table.add({use.name, densityText(use.density), std::to_string(use.components)});
    }
    return table.text();
}

/// Prints what a file holds.
void runInfo(const InfoOptions& options) {
    const host::DesignSummary summary = host::summarize(readDesign(options.file, options.limits));
    std::cout << printable(summary.name) << "\n\n"
              << "Components   " << summary.components << "\n"
              << "  with shape " << summary.bodies << "\n"
              << "Occurrences  " << summary.occurrences << "\n"
              << "Levels       " << summary.levels << "\n"
              << "Length unit  " << (summary.unit.empty() ? "unknown" : printable(summary.unit))
              << "\n";
    if (!summary.materials.empty()) {
        std::cout << "\n" << materialTable(summary.materials);
    }
}

}  // namespace

void addInfoCommand(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "info", "Print what a file holds: components, occurrences, levels, units, materials");
    InfoOptions& options = optionsFor(command, runInfo);
    addFile(command, options.file);
    addLimits(command, options.limits);
}

}  // namespace workbench
