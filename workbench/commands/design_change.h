#pragma once

#include "workbench/commands/design_reading.h"

#include <string>
#include <vector>

/// The commands of the add-in that change a design, as subcommands: the button is pressed in a
/// session, and the design is saved.
namespace workbench {

struct DesignCommandOptions {
    std::string file;
    std::string saveFile;                  ///< where to save; empty: see `saveTarget`
    std::vector<std::string> occurrences;  ///< full path names; none: all directly under the root
    bool ground = false;                   ///< grounds what was moved
    std::string addin;                     ///< folder of the add-in; empty: beside the program
    host::ReadingLimits limits;
};

/// Has "Move To Origin" place occurrences at the origin. Throws a `Failure`, with nothing saved.
void runMoveToOrigin(const DesignCommandOptions& options);

/// Has "Projected Entities As Construction" do its work in each sketch of the design, which is
/// opened for edit for it. Throws a `Failure`, with nothing saved.
void runProjectToConstruction(const DesignCommandOptions& options);

}  // namespace workbench
