#pragma once

/// What the workbench has to know of the add-in to use it as its user does: the ids of what is on
/// the screen, and the files that it leaves. No id of the add-in is spelt anywhere else here.
namespace workbench {

/// @name Commands
/// @{
inline constexpr const char* kBomCommand = "QM_TX_BOM";
inline constexpr const char* kPropertiesCommand = "QEMA_EditPropertiesCmd";
inline constexpr const char* kConfigurationCommand = "QM_TX_configuration";
inline constexpr const char* kMoveToOriginCommand = "QM_TX_moveComponentToOrigin";
inline constexpr const char* kProjectedEntitiesCommand = "QM_TX_projectedEntitiesAsConstruction";
inline constexpr const char* kOpenLocalCommand = "QEMA_OpenLocalCmd_QAT";
/// @}

/// What the ids of columns and properties begin with; the name of the property follows.
inline constexpr const char* kPropertyPrefix = "QEMA_";

/// The group of the attributes that hold a component's properties.
inline constexpr const char* kPropertyGroup = "QEMA_PropertiesAttributesGroup";

/// @name The BOM dialog
/// @{

/// One of the dialog's tabs that show a table.
struct BomTab {
    const char* name;  ///< on the command line
    const char* tab;
    const char* table;
};

inline constexpr BomTab kStructureTab = {
    .name = "structure", .tab = "QEMA_tab_structure_BOM", .table = "QEMA_bom_structure"};
inline constexpr BomTab kModelTab = {
    .name = "model", .tab = "QEMA_tab_models_BOM", .table = "QEMA_bom_models"};

inline constexpr const char* kExportButton = "QEMA_btnExportXls";
inline constexpr const char* kTotalMass = "idAllMass";
inline constexpr const char* kSortOrder = "QEMA_droDown_AscDesc";
inline constexpr const char* kHeaderSuffix = "_0";  ///< after the property, of a column's header

inline constexpr int kPictureColumn = 0;     ///< of both tables: the icon of a row
inline constexpr int kPositionColumn = 1;    ///< of both tables, hidden on the model tab
inline constexpr int kTreeColumn = 2;        ///< of both tables, hidden on the structure tab
inline constexpr int kFirstFreeColumn = 5;   ///< of both tables
inline constexpr int kPartNumberColumn = 3;  ///< of both tables

/// What an assembly of the model tab shows once it is expanded; the second one where it has no
/// drawing of its own.
inline constexpr const char* kAssemblyPicture = "Asm";
inline constexpr const char* kExpandedPicture = "././Resources/BOM/UnColapseAsm";
inline constexpr const char* kExpandedTree = "\xE2\x96\x91";

inline constexpr const char* kConfigurationTab = "QEMA_tab_config_BOM";
inline constexpr const char* kSaveConfiguration = "QEMA_btnSaveConfigBom";
inline constexpr const char* kPropertyList = "iProperty_";  ///< then 0 to 5
inline constexpr const char* kCaptionField = "nameCol";     ///< then 5 to 10
inline constexpr int kFirstCaptionField = 5;
inline constexpr int kFreeColumns = 6;
inline constexpr const char* kNoProperty = "---Select One---";
inline constexpr const char* kHeading = "---";  ///< how a list item begins that is no property
inline constexpr const char* kReferenceChoice = "Reference";  ///< of a BOM structure; hides rows
inline constexpr const char* kCombinePicture =
    "Combine";  ///< how the pictures begin of rows that merge components
inline constexpr const char* kMassLineBegin =
    "Total mass of structure BOM [kg]";  ///< in the exported file

/// Properties that the add-in works out: their cells can be edited, and are not written back.
inline constexpr const char* kMeasuredProperties[] = {
    "Quantity",          "Area",   "Density", "Mass",   "Volume",
    "Physical Material", "Length", "Width",   "Height", "Bounding Box"};

/// The columns of a list for which none were chosen.
inline constexpr const char* kDefaultColumns[] = {"Quantity", "Part Name", "Mass",
                                                  "Physical Material"};
/// @}

/// @name The properties dialog
/// @{
inline constexpr const char* kComponentSelection = "QEMA_selectComponent";
inline constexpr const char* kPropertyGroups[] = {"QEMA_properties", "QEMA_customProperties"};
inline constexpr const char* kUserPropertyTab = "QEMA_tab_Settings";
inline constexpr const char* kUserPropertyTable = "userProperty";
inline constexpr const char* kAddUserProperty = "propertyAdd";
inline constexpr const char* kRemoveUserProperty = "propertyDelete";
inline constexpr const char* kSaveUserProperties = "QEMA_btnSaveUserIProperty";
inline constexpr const char* kUserPropertyMessage = "messageSave";
/// @}

/// @name The configuration dialog
/// @{
inline constexpr const char* kProviderChoice = "choiceProvider";
inline constexpr const char* kProviderAddress = "helpdeskOther";
/// @}

/// @name The "Move To Origin" dialog
/// @{
inline constexpr const char* kGroundInput = "ground";
/// @}

/// @name The helpdesk
/// @{

/// A button, by its name on the command line.
struct HelpdeskAction {
    const char* name;
    const char* command;
};

inline constexpr HelpdeskAction kHelpdeskActions[] = {
    {.name = "open", .command = "QM_HD_openFolder"},
    {.name = "capture-screen", .command = "QM_HD_captureScreen"},
    {.name = "capture-host", .command = "QM_HD_captureFusion"},
    {.name = "system-info", .command = "QM_HD_systemInfo"},
    {.name = "zip", .command = "QM_HD_compressFolder"},
    {.name = "clear", .command = "QM_HD_clearFolder"},
    {.name = "guide", .command = "QM_HD_openHelp"},
    {.name = "go", .command = "QM_HD_openHelpdesk"},
};
/// @}

/// @name Files
/// @{
inline constexpr const char* kExportFile = "TarnixBOM.csv";
inline constexpr const char* kSettingsFile = "Tarnix_configuration.xml";
inline constexpr const char* kSupportFolder = "Helpdesk";  ///< in the temporary folder
/// @}

}  // namespace workbench
