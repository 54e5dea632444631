#pragma once

#include "workbench/addin_names.h"
#include "workbench/bom_command.h"
#include "workbench/parts_list.h"

#include "host/session/session.h"

#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// What the add-in made of a design.
struct BomResult {
    PartsList list;
    std::string exported;               ///< bytes of the exported file, empty if it left none
    std::filesystem::path exportFile;   ///< where it stands, empty if it is not there
    std::vector<std::string> shell;     ///< what the add-in asked the shell to open
    std::vector<host::Raised> raised;   ///< everything that left the add-in as an exception
    std::vector<std::string> messages;  ///< what it showed to its user
};

/// Runs the add-in on a design as its user would: BOM, the tab, the export, Close. Raises a
/// `Failure` where a step cannot be done.
BomResult makeBom(host::DesignData design, const BomTab& tab, const BomOptions& options);

/// True for what the add-in raises each time it does its work: after an export, and at the end of
/// `stop` in a host that has no control to repeat a command.
bool isOrdinary(const host::Raised& raised);

/// One line about something that the add-in let out.
std::string describe(const host::Raised& raised);

}  // namespace workbench
