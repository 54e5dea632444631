#include "tarnix/bom/tabs/row_cells.h"

#include "tarnix/settings/settings_document.h"
#include "tarnix/text/numbers.h"

#include <cstddef>

namespace tarnix {

using namespace adsk::core;

namespace {

void addHeader(const Ptr<TableCommandInput>& table, const Ptr<CommandInputs>& inputs, int column,
               const std::string& id, const std::string& caption) {
    table->addCommandInput(inputs->addBoolValueInput(id, caption, /*isCheckBox=*/false,
                                                     /*resourceFolder=*/"", /*initialValue=*/false),
                           /*row=*/0, column, /*rowSpan=*/0, /*columnSpan=*/0);
}

}  // namespace

std::vector<Column> readColumns() {
    std::vector<Column> columns;
    for (const std::string& item : readCategoryItems("category", "bomItems")) {
        columns.push_back(columnOf(item));
    }
    return columns;
}

void placeCells(const Ptr<TableCommandInput>& table, int tableRow, const CellRow& cells) {
    int column = 0;
    for (const Ptr<CommandInput>& cell : cells) {
        table->addCommandInput(cell, tableRow, column, /*rowSpan=*/0, /*columnSpan=*/0);
        ++column;
    }
}

Ptr<TableCommandInput> findOrAddTable(const Ptr<CommandInputs>& inputs, const RowTable& rows,
                                      const std::vector<Column>& columns) {
    Ptr<TableCommandInput> table = inputs->itemById(rows.tableId);
    if (!table) {
        // One less than the columns there are: the last column has this number.
        const int numberOfColumns = static_cast<int>(columns.size()) + kFixedColumns - 1;
        table = inputs->addTableCommandInput(rows.tableId, rows.caption, numberOfColumns,
                                             extendColumnRatio(rows.fixedRatio, columns.size()));
    }
    return table;
}

void buildTableHeader(const Ptr<TableCommandInput>& table, const std::vector<std::string>& fixedIds,
                      const std::vector<Column>& columns) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    int place = 0;
    for (const std::string& id : fixedIds) {
        addHeader(table, inputs, place, id, kFixedCaptions[place]);
        ++place;
    }
    for (const Column& column : columns) {
        addHeader(table, inputs, place, column.key + "_0", labelWithUnit(column.label));
        ++place;
    }
}

void fillConfiguredCells(const BomRow& row, const Ptr<TableCommandInput>& table, int tableRow,
                         int rowId, const std::vector<Column>& columns) {
    const std::string tableId = table->id();
    if (tableId != kModelRows.tableId && tableId != kStructureRows.tableId) {
        return;
    }
    const std::string number = decimal(tableId == kModelRows.tableId ? tableRow : rowId);
    const Ptr<CommandInputs> inputs = table->commandInputs();
    for (int k = 0; k < kConfigurableColumns; ++k) {
        Column column;
        std::string value;
        if (const auto index = static_cast<std::size_t>(k); index < columns.size()) {
            column = columns[index];
            value = bomCellValue(row, column.key);
        }
        const auto cell =
            inputs->addStringValueInput(column.key + "_" + number, column.label, value);
        table->addCommandInput(cell, tableRow, kFixedColumns + k, /*rowSpan=*/0, /*columnSpan=*/0);
    }
}

Ptr<CommandInputs> addTab(const Ptr<CommandInputs>& inputs, const std::string& id,
                          const std::string& caption) {
    const Ptr<TabCommandInput> tab = inputs->addTabCommandInput(id, caption, /*resourceFolder=*/"");
    return tab ? tab->children() : nullptr;
}

Ptr<BoolValueCommandInput> addExportButton(const Ptr<CommandInputs>& inputs) {
    return inputs->addBoolValueInput(kExportId, "Export BOM to MS Excel", /*isCheckBox=*/false,
                                     kExportIcon, /*initialValue=*/true);
}

Ptr<StringValueCommandInput> addReadOnlyField(const Ptr<CommandInputs>& inputs,
                                              const std::string& id, const std::string& name,
                                              const std::string& value) {
    Ptr<StringValueCommandInput> field = inputs->addStringValueInput(id, name, value);
    field->isReadOnly(true);
    return field;
}

Ptr<StringValueCommandInput> addPartNumberField(const Ptr<CommandInputs>& inputs,
                                                const std::string& id, const BomRow& row) {
    return inputs->addStringValueInput(id, kFixedCaptions[kPartNumberColumn],
                                       row.component->partNumber());
}

Ptr<DropDownCommandInput> addStructureDropDown(const Ptr<CommandInputs>& inputs,
                                               const std::string& id, const BomRow& row) {
    Ptr<DropDownCommandInput> dropDown = inputs->addDropDownCommandInput(
        id, kFixedCaptions[kStructureColumn], TextListDropDownStyle);
    const Ptr<ListItems> items = dropDown->listItems();
    for (const char* structure : kBomStructures) {
        items->add(structure, isPropertySet(row, structure), /*icon=*/"", /*beforeIndex=*/-1);
    }
    if (firstSetProperty(row).empty()) {
        items->item(0)->isSelected(true);
    }
    return dropDown;
}

}  // namespace tarnix
