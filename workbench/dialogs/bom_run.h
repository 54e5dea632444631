#pragma once

#include "workbench/commands/bom_command.h"
#include "workbench/commands/bom_request.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/parts_list.h"
#include "workbench/output/written_files.h"

#include "host/session/session.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// What the add-in made of a design.
struct BomResult {
    PartsList list;
    std::string exported;              ///< bytes of the exported file, empty if it left none
    std::filesystem::path exportFile;  ///< where it stands, empty if it is not there
    std::vector<std::string> shell;    ///< what the add-in asked the shell to open
    std::vector<host::UncaughtException>
        thrown;                             ///< everything that left the add-in as an exception
    std::vector<std::string> messages;      ///< what it showed to its user
    std::optional<host::DesignData> saved;  ///< the design after its changes were accepted
};

/// Runs the add-in on a design as its user would: BOM, the tab, the export, Close; before, what
/// else is wished for. Each wish has a session of its own, since line numbers go on from one
/// opening to the next. The settings are handed to `written` before they are saved. Throws a
/// `Failure` where a step cannot be done, and before the export where a shape could not be
/// measured.
BomResult makeBom(host::DesignData design, const BomTab& tab, const BomOptions& options,
                  const BomWishes& wishes, WrittenFiles& written);

}  // namespace workbench
