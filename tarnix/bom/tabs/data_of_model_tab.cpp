#include "tarnix/bom/tabs/data_of_model_tab.h"

#include "tarnix/bom/model/row_positions.h"
#include "tarnix/bom/tabs/row_cells.h"
#include "tarnix/text/numbers.h"

#include <cstddef>

namespace tarnix {
namespace {

using namespace adsk::core;

/// A read-only field, whose value is passed at creation and set once more.
Ptr<StringValueCommandInput> addShownField(const Ptr<CommandInputs>& inputs, const std::string& id,
                                           const std::string& value) {
    Ptr<StringValueCommandInput> field = addReadOnlyField(inputs, id, /*name=*/"", value);
    field->value(value);
    return field;
}

CellRow makeCells(const Ptr<CommandInputs>& inputs, const BomRow& row, const std::string& r,
                  const std::string& position) {
    const RowIds& ids = kModelRows.ids;
    CellRow cells;
    cells.push_back(inputs->addBoolValueInput(ids.icon + r, "", /*isCheckBox=*/false,
                                              row.childCount > 0 ? kFoldedIcon : kPartIcon,
                                              /*initialValue=*/false));
    cells.push_back(addShownField(inputs, ids.position + r, position));
    cells.push_back(addShownField(inputs, ids.graph + r, graphPosition(position)));
    cells.push_back(addPartNumberField(inputs, ids.partNumber + r, row));
    cells.push_back(addStructureDropDown(inputs, ids.structure + r, row));
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
        const Ptr<StringValueCommandInput> position =
            table->getInputAtPosition(tableRow, kPositionColumn);
        if (position->value().find('.') != std::string::npos) {
            setRowVisible(table, tableRow, columns, false);
        }
    }
}

}  // namespace

void buildDataOfModelTab(BomModel& model, Ptr<CommandInputs> inputs) {
    const Ptr<CommandInputs> children = addTab(inputs, kModelRows.tabId, kModelRows.caption);
    if (!children) {
        return;
    }
    const std::vector<Column> columns = readColumns();
    addExportButton(children)->isFullWidth(false);
    const Ptr<TableCommandInput> table = findOrAddTable(children, kModelRows, columns);
    if (!table) {
        return;
    }
    buildModelTableHeader(table, columns);
    fillModelTable(table, model.rows, columns);
    // Rows have no more cells than six columns need: a seventh has a header, and nothing below it.
    const int cells = kFixedColumns + static_cast<int>(columns.size());
    setRowVisible(table, 0, cells, true);
    hideNestedRows(table, cells);
    table->columnRatio(extendColumnRatio(kModelRows.fixedRatio, columns.size()));
    table->maximumVisibleRows(kMaximumVisibleRows);
}

void buildModelTableHeader(const Ptr<TableCommandInput>& table,
                           const std::vector<Column>& columns) {
    buildTableHeader(table, std::vector<std::string>(kFixedColumns), columns);
}

void fillModelTable(const Ptr<TableCommandInput>& table, const std::vector<BomRow>& rows,
                    const std::vector<Column>& columns) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    RowPositions positions;
    std::string previousPathName;
    int r = 1;
    for (const BomRow& row : rows) {
        const std::string position = positions.next(row, previousPathName);
        const CellRow cells = makeCells(inputs, row, decimal(r), position);
        const int tableRow = table->rowCount();
        placeCells(table, tableRow, cells);
        fillConfiguredCells(row, table, tableRow, r, columns);
        positions.finishRow();
        previousPathName = row.pathName;
        ++r;
    }
}

}  // namespace tarnix
