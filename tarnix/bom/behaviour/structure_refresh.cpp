#include "tarnix/bom/behaviour/structure_refresh.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/model/walk.h"
#include "tarnix/bom/tabs/row_cells.h"
#include "tarnix/bom/tabs/structure_tab.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"
#include "tarnix/text/numbers.h"

#include <Fusion/FusionAll.h>

#include <cstddef>
#include <utility>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

void showCells(const Ptr<TableCommandInput>& table, int row, int firstColumn) {
    const int lastColumn = table->numberOfColumns();
    for (int column = firstColumn; column <= lastColumn; ++column) {
        table->getInputAtPosition(row, column)->isVisible(true);
    }
}

/// Shows the cells of all data rows but those that were hidden whole, with the cell in column 0.
void showRows(const Ptr<TableCommandInput>& table) {
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount; ++row) {
        const Ptr<CommandInput> first = table->getInputAtPosition(row, kIconColumn);
        if (first && first->isVisible()) {
            showCells(table, row, 1);
        }
    }
}

/// The mass of what the table holds, hidden rows included, each with its quantity.
double totalMass(const Ptr<TableCommandInput>& table, const std::vector<BomRow>& rows) {
    double total = 0;
    const int rowCount = table->rowCount();
    for (int tableRow = 1; tableRow < rowCount; ++tableRow) {
        const int number = idNumber(table->getInputAtPosition(tableRow, kIconColumn)->id());
        const BomRow& row = at(rows, static_cast<std::size_t>(number) - 1);
        total += row.occurrence->physicalProperties()->mass() * static_cast<double>(row.quantity);
    }
    return total;
}

void showTotalMass(const Ptr<TableCommandInput>& table, double total) {
    const Ptr<StringValueCommandInput> field = table->commandInputs()->itemById(idAllMass);
    if (field) {
        field->value(formatMass(total));
        field->isVisible(true);
    }
}

void refreshStructureTab(const Ptr<CommandInputs>& inputs, const Ptr<TableCommandInput>& table,
                         const std::vector<Column>& columns) {
    refreshStructureTable(inputs, table);
    showRows(table);
    const Ptr<Component> root = activeRootComponent();
    if (!root) {
        return;
    }
    const Ptr<OccurrenceList> occurrences = root->occurrences()->asList();
    BomModel model;
    buildStructureTab(inputs);
    const std::vector<BomRow>& rows =
        walkOccurrencesMerged(model, occurrences, /*level=*/1, RowProperties::Dropped);
    showTotalMass(table, totalMass(table, rows));
    table->columnRatio(makeColumnRatio(table, columns));
}

/// Hides the row after `number`, and the rows after it whose positions begin with that row's.
void hideReferenceRows(const Ptr<TableCommandInput>& table, int number) {
    const std::string position = positionOfRow(table, number + 1);
    hideRow(table, number + 1);
    const int rowCount = table->rowCount();
    for (int row = number + 2; row < rowCount; ++row) {
        const std::string next = positionOfRow(table, row);
        if (!next.starts_with(position)) {
            return;
        }
        if (next.size() > position.size()) {
            hideRow(table, row);
        }
    }
}

}  // namespace

void refreshOnTabChange(Ptr<InputChangedEventArgs> eventArgs) {
    const Ptr<CommandInputs> inputs = eventArgs->inputs();
    const RowTabs tabs = rowTabs(inputs);
    const Ptr<TableCommandInput> structureTable = inputs->itemById(kStructureRows.tableId);
    const Ptr<TableCommandInput> modelTable = inputs->itemById(kModelRows.tableId);
    const std::vector<Column> columns = readColumns();
    if (tabs.structure->isActive()) {
        refreshStructureTab(inputs, structureTable, columns);
    } else if (tabs.model->isActive()) {
        showCells(modelTable, 0, 0);
        modelTable->columnRatio(makeColumnRatio(modelTable, columns));
    }
}

void refreshStructureTable(Ptr<CommandInputs> inputs, Ptr<TableCommandInput> table) {
    if (table->rowCount() == 0) {
        fillStructureTable(inputs, table);
    }
    const int rowCount = table->rowCount();
    for (int row = 1; row < rowCount; ++row) {
        const Ptr<CommandInput> cell = table->getInputAtPosition(row, kPartNumberColumn);
        const int number = idNumber(cell->id());
        const Ptr<DropDownCommandInput> dropDown = cell;
        const Ptr<ListItem> selected = dropDown ? dropDown->selectedItem() : nullptr;
        // The Structure table has another id, and the part number in column 3: there a reference is
        // hidden when it is chosen, and nothing here may hide it a second time.
        if (selected && selected->name() == "Reference" && table->id() == "BOM Structure") {
            hideReferenceRows(table, number);
        }
    }
}

void fillStructureTable(Ptr<CommandInputs> inputs, Ptr<TableCommandInput> table) {
    buildStructureTab(inputs);
    const Ptr<Component> root = activeRootComponent();
    if (!root) {
        return;
    }
    const Ptr<OccurrenceList> occurrences = root->occurrences()->asList();
    const bool isStructure = table->id() == kStructureRows.tableId;
    BomModel model;
    if (isStructure) {
        walkOccurrencesMerged(model, occurrences, /*level=*/1);
    } else {
        walkOccurrences(model, occurrences, /*level=*/1);
    }
    const std::vector<Column> columns = readColumns();
    if (isStructure) {
        buildStructureTableHeader(table, columns);
    }
    fillStructureRows(table, std::move(model.rows), columns);
}

std::string formatMass(double kilograms) { return formatFixed(kilograms, 3); }

std::string makeColumnRatio(Ptr<TableCommandInput> table, const std::vector<Column>& columns) {
    return elevenColumnRatio(table->id(), columns.size());
}

}  // namespace tarnix
