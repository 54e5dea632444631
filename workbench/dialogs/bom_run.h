#pragma once

#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/bom_dialog.h"
#include "workbench/dialogs/cell_edits.h"
#include "workbench/output/parts_list.h"
#include "workbench/output/written_files.h"

#include "host/session/session.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// What the user wants of the BOM dialog.
struct BomRequest {
    const BomTab* tab = &kStructureTab;
    std::vector<ColumnChoice> columns;  ///< to save first; none: those of the settings stay
    std::optional<SortOrder> sort;
    std::optional<int> levels;  ///< of the tree to show; by default the first
    std::vector<CellEdit> edits;
    bool save = false;  ///< accepts the dialog, which writes the tab into the design
    std::string addin;  ///< folder of the add-in; empty: the one beside the program
    bool open = false;  ///< lets the shell open what the add-in asks it to
};

/// What the add-in made of a design.
struct BomResult {
    PartsList list;
    std::string exported;              ///< bytes of the exported file, empty if it left none
    std::filesystem::path exportFile;  ///< where it is, empty if it is not there
    std::vector<std::string> shell;    ///< what the add-in asked the shell to open
    std::vector<host::UncaughtException> thrown;
    std::vector<host::Message> messages;    ///< what the add-in showed to its user
    std::optional<host::DesignData> saved;  ///< the design after its changes were accepted
};

/// Runs the add-in on a design as its user would: BOM, the tab, the export, Close.
///
/// Before that the columns are saved, and then cells edited and the dialog accepted, if the request
/// says so. Each of these has a session of its own, since line numbers go on from one opening to
/// the next. The settings are watched by `written` before they are saved. Throws a `Failure` where
/// a step cannot be done, and before the export where a shape could not be measured.
BomResult runBomDialog(host::DesignData design, const BomRequest& request, WrittenFiles& written);

}  // namespace workbench
