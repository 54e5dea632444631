#pragma once

#include <cstddef>
#include <string>

/// The layout of the BOM dialog: the ids of its inputs, by which they are found again and by
/// nothing else, the columns of its tables, their widths and their icons.
///
/// The id of a cell in a row is a prefix that names the column and the number of the row. Row 0 of
/// a table holds its headers.
namespace tarnix {

/// The button in both tabs that show rows.
inline constexpr const char* kExportId = "QEMA_btnExportXls";

/// The host's own input that reports a change of the tab.
inline constexpr const char* kTabBarId = "APITabBar";

/// @name The fixed columns of the tables that show rows, and the configured ones after them
/// @{
inline constexpr int kIconColumn = 0;
inline constexpr int kPositionColumn = 1;
inline constexpr int kGraphColumn = 2;
inline constexpr int kPartNumberColumn = 3;
inline constexpr int kStructureColumn = 4;
inline constexpr int kFixedColumns = 5;

/// The most configured columns that rows have cells for.
inline constexpr int kConfigurableColumns = 6;

inline constexpr const char* kFixedCaptions[kFixedColumns] = {"", "Pos.", "", "Part Number",
                                                              "BOM Structure"};
/// @}

inline constexpr int kMaximumVisibleRows = 1000;

/// What the ids of a row's fixed cells begin with.
struct RowIds {
    const char* icon = "";
    const char* position = "";
    const char* graph = "";
    const char* partNumber = "";
    const char* structure = "";
};

/// A tab that shows rows, and its table.
struct RowTable {
    const char* tabId = "";
    const char* tableId = "";
    const char* caption = "";     ///< of the tab and of the table
    const char* fixedRatio = "";  ///< the widths of the fixed columns
    RowIds ids;
};

inline constexpr RowTable kModelRows = {.tabId = "QEMA_tab_models_BOM",
                                        .tableId = "QEMA_bom_models",
                                        .caption = "Data of Model",
                                        .fixedRatio = "2:0:8:12:8",
                                        .ids = {.icon = "modelColapseRow_",
                                                .position = "positionOcc_",
                                                .graph = "graphPositionOcc_",
                                                .partNumber = "modelPartNumberOcc_",
                                                .structure = "modelBomStructure_"}};

inline constexpr RowTable kStructureRows = {.tabId = "QEMA_tab_structure_BOM",
                                            .tableId = "QEMA_bom_structure",
                                            .caption = "Structure",
                                            .fixedRatio = "2:3:0:12:8",
                                            .ids = {.icon = "colapseRow_",
                                                    .position = "positionOcc_",
                                                    .graph = "graphPositionOcc_",
                                                    .partNumber = "partNumberOcc_",
                                                    .structure = "bomStructure_"}};

/// `ratio`, the widths of the five fixed columns, with ":8" for each of `n` configured ones and
/// ":0" for each further column up to the twelfth.
std::string extendColumnRatio(const std::string& ratio, std::size_t n);

/// The widths of the eleven columns of the table of this id: its fixed ones, then ":8" for each of
/// `n` configured ones and ":0" for each slot that is not configured. Another table has no fixed
/// part.
std::string elevenColumnRatio(const std::string& tableId, std::size_t n);

/// @name The tab "Structure" outside its table
/// @{
inline constexpr const char* kSortOrderId = "QEMA_droDown_AscDesc";
inline constexpr const char* kAscending = "Ascending";
inline constexpr const char* kDescending = "Descending";
inline constexpr const char* idAllMass = "idAllMass";  ///< the total mass below the table
/// @}

/// @name The tab "BOM Configuration", whose table is the model of one row
/// @{
inline constexpr const char* kConfigTabId = "QEMA_tab_config_BOM";
inline constexpr const char* kConfigTableId = "QEMA_bom_config_table";
inline constexpr const char* kConfigNoticeId = "fullWidth_textBox";
inline constexpr const char* kSaveConfigId = "QEMA_btnSaveConfigBom";

inline constexpr int kConfigColumns = 10;
inline constexpr int kFirstFreeColumn = 4;  ///< those ahead of it cannot be changed
inline constexpr const char* kConfigRatio = "3:3:6:7:8:8:8:8:8:8";

inline constexpr int kStateRow = 0;
inline constexpr int kCaptionRow = 1;
inline constexpr int kPropertyRow = 2;

inline constexpr const char* kStateIdPrefix = "colUsrHeader_";  ///< 1 for the first free column
inline constexpr const char* kCaptionIdPrefix = "nameCol";      ///< 1 for the first column
inline constexpr const char* kPropertyIdBase = "iProperty";  ///< "_" and 0 for the first free one

inline constexpr const char* kUsedState = "used";
/// @}

/// @name Icons
/// @{
inline constexpr const char* kExportIcon = "././Resources/BOM/BtnExport";
inline constexpr const char* kPartIcon = "././Resources/BOM/Part";
inline constexpr const char* kFoldedIcon = "././Resources/BOM/ColapseAsm";
inline constexpr const char* kUnfoldedIcon = "././Resources/BOM/UnColapseAsm";
inline constexpr const char* kPartImage = "././Resources/BOM/Part.png";
inline constexpr const char* kPartUpImage = "././Resources/BOM/PartUp.png";
inline constexpr const char* kAssemblyImage = "././Resources/BOM/Asm.png";
inline constexpr const char* kAssemblyUpImage = "././Resources/BOM/AsmUp.png";
inline constexpr const char* kCombineImage = "././Resources/BOM/Combine.png";
inline constexpr const char* kCombineUpImage = "././Resources/BOM/CombineUp.png";

/// What the icons of parts, of assemblies and of merged items have in their names, and no others.
inline constexpr const char* kInPartIcons = "/BOM/Part";
inline constexpr const char* kInAssemblyIcons = "Asm";
inline constexpr const char* kInCombineImages = "Combine";
/// @}

}  // namespace tarnix
