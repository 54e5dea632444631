#pragma once

/// What the workbench has to know of the add-in to use it as a person does: the ids of what a
/// person sees, and the files that it leaves.
namespace workbench {

inline constexpr const char* kBomCommand = "QM_TX_BOM";
inline constexpr const char* kMoveToOriginCommand = "QM_TX_moveComponentToOrigin";
inline constexpr const char* kGroundInput = "ground";
inline constexpr const char* kProjectedEntitiesCommand = "QM_TX_projectedEntitiesAsConstruction";
inline constexpr const char* kOpenLocalCommand = "QEMA_OpenLocalCmd_QAT";
inline constexpr const char* kExportButton = "QEMA_btnExportXls";
inline constexpr const char* kTotalMass = "idAllMass";
inline constexpr const char* kExportFile = "TarnixBOM.csv";
inline constexpr const char* kSettingsFile = "Tarnix_configuration.xml";
inline constexpr const char* kSortOrder = "QEMA_droDown_AscDesc";

/// One of the dialog's tabs that show a table.
struct BomTab {
    const char* name;  ///< as the command line has it
    const char* tab;
    const char* table;
};

inline constexpr BomTab kStructureTab = {"structure", "QEMA_tab_structure_BOM",
                                         "QEMA_bom_structure"};
inline constexpr BomTab kModelTab = {"model", "QEMA_tab_models_BOM", "QEMA_bom_models"};

/// @name The tab that configures the columns
/// @{
inline constexpr const char* kConfigurationTab = "QEMA_tab_config_BOM";
inline constexpr const char* kSaveConfiguration = "QEMA_btnSaveConfigBom";
inline constexpr const char* kPropertyList = "iProperty_";  ///< and 0 to 5
inline constexpr const char* kCaptionField = "nameCol";     ///< and 5 to 10
inline constexpr int kFirstCaptionField = 5;
inline constexpr int kFreeColumns = 6;
inline constexpr const char* kNoProperty = "---Select One---";
inline constexpr const char* kHeading = "---";  ///< how a choice that is no property begins
/// @}

}  // namespace workbench
