#pragma once

/// The ids of the dialog's inputs outside its table cells: what is shown under them is found again
/// by them, and by nothing else.
namespace tarnix {

inline constexpr const char* kModelTabId = "QEMA_tab_models_BOM";
inline constexpr const char* kModelTableId = "QEMA_bom_models";

inline constexpr const char* kStructureTabId = "QEMA_tab_structure_BOM";
inline constexpr const char* kStructureTableId = "QEMA_bom_structure";
inline constexpr const char* kSortOrderId = "QEMA_droDown_AscDesc";
inline constexpr const char* idAllMass = "idAllMass";  ///< the total mass below the table

inline constexpr const char* kConfigTabId = "QEMA_tab_config_BOM";
inline constexpr const char* kConfigTableId = "QEMA_bom_config_table";
inline constexpr const char* kSaveConfigId = "QEMA_btnSaveConfigBom";

/// Stands in both tabs that show rows.
inline constexpr const char* kExportId = "QEMA_btnExportXls";

}  // namespace tarnix
