#pragma once

#include "workbench/cli/common_options.h"
#include "workbench/dialogs/dialog_session.h"

#include <functional>
#include <optional>
#include <string>

/// What the subcommands share that change a design through a command of the add-in.
namespace workbench {

struct DesignChangeOptions {
    std::string file;
    std::optional<std::string> saveFile;  ///< where to save, see `saveTarget`
    AddinChoice addin;
    ReadingOptions reading;
};

void addDesignChange(CLI::App& command, DesignChangeOptions& options);

/// Does its work on the open design, and returns the line that says what was done.
using DesignChange = std::function<std::string(DialogSession&)>;

/// Opens the design, has the work done, saves the design, and prints what was done. Throws a
/// `Failure`, with nothing saved.
void changeDesign(const DesignChangeOptions& options, const DesignChange& change);

}  // namespace workbench
