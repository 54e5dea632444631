#pragma once

/// What the workbench has to know of the add-in to use it as a person does: the ids of what a
/// person sees, and the file that the export leaves.
namespace workbench {

inline constexpr const char* kBomCommand = "QM_TX_BOM";
inline constexpr const char* kExportButton = "QEMA_btnExportXls";
inline constexpr const char* kTotalMass = "idAllMass";
inline constexpr const char* kExportFile = "TarnixBOM.csv";

/// One of the dialog's tabs that show a table.
struct BomTab {
    const char* name;  ///< as the command line has it
    const char* tab;
    const char* table;
};

inline constexpr BomTab kStructureTab = {"structure", "QEMA_tab_structure_BOM",
                                         "QEMA_bom_structure"};
inline constexpr BomTab kModelTab = {"model", "QEMA_tab_models_BOM", "QEMA_bom_models"};

}  // namespace workbench
