#include "tarnix/bom/tabs/data_of_model_tab.h"

#include "tarnix/bom/model/row_positions.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/bom/tabs/columns.h"
#include "tarnix/bom/tabs/row_inputs.h"
#include "tarnix/text/numbers.h"

#include <cstddef>

namespace tarnix {
namespace {

using adsk::core::CommandInputs;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TabCommandInput;
using adsk::core::TableCommandInput;

constexpr const char* kBaseRatio = "2:0:8:12:8";

Ptr<TableCommandInput> findOrAddTable(const Ptr<CommandInputs>& inputs, std::size_t itemCount) {
    Ptr<TableCommandInput> table = inputs->itemById(kModelTableId);
    if (!table) {
        table = inputs->addTableCommandInput(kModelTableId, "Data of Model",
                                             static_cast<int>(itemCount) + 4,
                                             extendColumnRatio(kBaseRatio, itemCount));
    }
    return table;
}

/// A read-only text, given at creation and set once more.
Ptr<StringValueCommandInput> addShownText(const Ptr<CommandInputs>& inputs, const std::string& id,
                                          const std::string& value) {
    Ptr<StringValueCommandInput> text = addReadOnlyText(inputs, id, "", value);
    text->value(value);
    return text;
}

FixedCells makeCells(const Ptr<CommandInputs>& inputs, const BomRow& row, const std::string& r,
                     const std::string& position) {
    const char* icon =
        row.childCount > 0 ? "././Resources/BOM/ColapseAsm" : "././Resources/BOM/Part";
    FixedCells cells;
    cells.icon = inputs->addBoolValueInput("modelColapseRow_" + r, "", /*isCheckBox=*/false, icon,
                                           /*initialValue=*/false);
    cells.position = addShownText(inputs, "positionOcc_" + r, position);
    cells.graph = addShownText(inputs, "graphPositionOcc_" + r, graphPosition(position));
    cells.partNumber = inputs->addStringValueInput("modelPartNumberOcc_" + r, "Part Number",
                                                   row.component->partNumber());
    cells.structure = addStructureDropDown(inputs, "modelBomStructure_" + r, row);
    return cells;
}

void setRowVisible(const Ptr<TableCommandInput>& table, int tableRow, int columns, bool visible) {
    for (int column = 0; column < columns; ++column) {
        table->getInputAtPosition(tableRow, column)->isVisible(visible);
    }
}

/// Leaves the rows at the top to be seen: they alone have a position without a point.
void hideNestedRows(const Ptr<TableCommandInput>& table, int columns) {
    const int rowCount = table->rowCount();
    for (int tableRow = 1; tableRow < rowCount; ++tableRow) {
        const Ptr<StringValueCommandInput> position = table->getInputAtPosition(tableRow, 1);
        if (position->value().find('.') != std::string::npos) {
            setRowVisible(table, tableRow, columns, false);
        }
    }
}

}  // namespace

void buildDataOfModelTab(BomModel& model, Ptr<CommandInputs> inputs) {
    const Ptr<TabCommandInput> tab = inputs->addTabCommandInput(kModelTabId, "Data of Model", "");
    const Ptr<CommandInputs> children = tab ? tab->children() : nullptr;
    if (!children) {
        return;
    }
    const std::vector<std::string> items = readColumnItems();
    addExportButton(children)->isFullWidth(false);
    const Ptr<TableCommandInput> table = findOrAddTable(children, items.size());
    if (!table) {
        return;
    }
    buildModelTableHeader(table, items);
    fillModelTable(table, model.rows, items);
    // Rows have no more cells than six items need: a seventh has a header, and nothing below it.
    const int columns = kFixedColumns + static_cast<int>(items.size());
    setRowVisible(table, 0, columns, true);
    hideNestedRows(table, columns);
    table->columnRatio(extendColumnRatio(kBaseRatio, items.size()));
    table->maximumVisibleRows(1000);
}

void buildModelTableHeader(const Ptr<TableCommandInput>& table,
                           const std::vector<std::string>& items) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    addHeader(table, inputs, 0, "", "");
    addHeader(table, inputs, 1, "", "Pos.");
    addHeader(table, inputs, 2, "", "");
    addHeader(table, inputs, 3, "", "Part Number");
    addHeader(table, inputs, 4, "", "BOM Structure");
    addConfiguredHeaders(table, inputs, items);
}

void fillModelTable(const Ptr<TableCommandInput>& table, const std::vector<BomRow>& rows,
                    const std::vector<std::string>& items) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    RowPositions positions;
    std::string previousPathName;
    int r = 1;
    for (const BomRow& row : rows) {
        const std::string position = positions.next(row, previousPathName);
        const FixedCells cells = makeCells(inputs, row, decimal(r), position);
        const int tableRow = table->rowCount();
        placeFixedCells(table, tableRow, cells);
        fillConfiguredCells(row, table, tableRow, r, items);
        positions.finishRow();
        previousPathName = row.pathName;
        ++r;
    }
}

}  // namespace tarnix
