#pragma once

#include "workbench/cli/addin_choice.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/bom_dialog.h"
#include "workbench/dialogs/cell_edits.h"
#include "workbench/dialogs/run_folder.h"
#include "workbench/output/bom_list.h"
#include "workbench/output/staged_files.h"

#include "host/session/session.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace workbench {

/// What the user wants of the BOM dialog.
struct BomRequest {
    const BomTab* tab = &kStructureTab;
    std::vector<ColumnChoice> columns;  ///< none: those of the settings, else the default ones
    bool keepColumns = false;           ///< stores them in the settings
    bool noColumns = false;             ///< shows none, and removes those of the settings
    std::optional<SortOrder> sort;
    std::optional<int> levels;  ///< of the tree to show; by default the first
    EditRequest edits;
    bool save = false;  ///< accepts the dialog, which writes the tab into the design
    AddinChoice addin;
    bool open = false;  ///< lets the shell open what the add-in asks it to
};

/// What the add-in made of a design.
struct BomResult {
    BomList list;
    std::string exported;              ///< bytes of the exported file, empty if it left none
    std::filesystem::path exportFile;  ///< where it stays after the run, empty if it does not
    std::vector<std::string> shell;    ///< what the add-in asked the shell to open; of a file that
                                       ///< goes with the run only the name
    std::vector<host::UncaughtException> thrown;
    std::vector<host::Message> messages;    ///< what the add-in showed to its user
    bool isLonePart = false;                ///< the root has bodies, and nothing is below it
    std::optional<host::DesignData> saved;  ///< the design after its changes were accepted
};

/// The BOM dialog of one run.
///
/// Its sessions follow one another in one folder, so no other run can come in between.
class BomRun {
public:
    /// Throws a `Failure` where the add-in cannot be used.
    explicit BomRun(const BomRequest& request);

    /// Runs the add-in on a design as its user would: BOM, the tab, the export, Close.
    ///
    /// Before that the columns are chosen, and then cells edited and the dialog accepted, if the
    /// request says so. Each of these has a session of its own, since line numbers go on from one
    /// opening to the next. Throws a `Failure` where a step cannot be done, where an edit was not
    /// taken, where a shape could not be measured, and where the export is not the list.
    BomResult make(host::DesignData design);

    /// Adds the settings to what is to be written, where the request stores columns.
    void stageSettings(StagedFiles& files) const;

private:
    void chooseColumns(const host::DesignData& design, BomResult& result);
    void useDialog(host::DesignData design, BomResult& result,
                   const std::function<void(host::Session&)>& work);
    void arrange(host::Session& session) const;
    void exportList(host::Session& session, BomResult& result) const;

    const BomRequest& request_;
    RunFolder folder_;
};

}  // namespace workbench
