#pragma once

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/tabs/table_layout.h"

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The inputs that the tabs of the BOM dialog have in common: a row's cells, the headers, the
/// tables and the tabs themselves.
namespace tarnix {

/// The configured columns, from left to right, as the settings document holds them.
std::vector<Column> readColumns();

/// The cells of one row of a table, in the order of their columns.
using CellRow = std::vector<adsk::core::Ptr<adsk::core::CommandInput>>;

/// Places the cells in `tableRow`, from column 0 on.
void placeCells(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int tableRow,
                const CellRow& cells);

/// The table of `rows` among `inputs`, made where it is missing; null where the host refuses it.
adsk::core::Ptr<adsk::core::TableCommandInput> findOrAddTable(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const RowTable& rows,
    const std::vector<Column>& columns);

/// Fills row 0 with a button for each fixed column, under `fixedIds`, and one for each configured
/// column, also for those that rows have no cells for.
void buildTableHeader(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                      const std::vector<std::string>& fixedIds, const std::vector<Column>& columns);

/// Places the six configured cells of a row into `tableRow`, empty ones after the last column.
///
/// The id of a cell is its key, "_" and a number: `tableRow` in the table "QEMA_bom_models",
/// `rowId` in "QEMA_bom_structure". In any other table nothing is made.
void fillConfiguredCells(const BomRow& row,
                         const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int tableRow,
                         int rowId, const std::vector<Column>& columns);

/// The inputs of a new tab of the dialog; null where the host refuses it.
adsk::core::Ptr<adsk::core::CommandInputs> addTab(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const std::string& caption);

/// The button "Export BOM to MS Excel"; null where the host refuses it.
adsk::core::Ptr<adsk::core::BoolValueCommandInput> addExportButton(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

/// A string input that the user cannot change.
adsk::core::Ptr<adsk::core::StringValueCommandInput> addReadOnlyField(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const std::string& name, const std::string& value);

/// The string input of a row's part number.
adsk::core::Ptr<adsk::core::StringValueCommandInput> addPartNumberField(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const BomRow& row);

/// The drop-down of a row's BOM structure. What the row has set is selected, and "Produce" where
/// the row has nothing set at all.
adsk::core::Ptr<adsk::core::DropDownCommandInput> addStructureDropDown(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const BomRow& row);

}  // namespace tarnix
