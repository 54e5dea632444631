#include "tarnix/bom/tabs/structure_tab.h"

#include "tarnix/bom/model/structure_filter.h"
#include "tarnix/bom/tabs/row_cells.h"
#include "tarnix/text/numbers.h"

namespace tarnix {
namespace {

using namespace adsk::core;

/// False where the host refused the drop-down or its items.
bool addSortOrder(const Ptr<CommandInputs>& inputs) {
    const Ptr<DropDownCommandInput> order = inputs->addDropDownCommandInput(
        kSortOrderId, "BOM can be sorted by clicking on the column header:", TextListDropDownStyle);
    const Ptr<ListItems> items = order ? order->listItems() : nullptr;
    return items && items->add(kAscending, /*isSelected=*/false, /*icon=*/"", /*beforeIndex=*/-1) &&
           items->add(kDescending, /*isSelected=*/false, /*icon=*/"", /*beforeIndex=*/-1);
}

/// The line number is the button's caption.
Ptr<BoolValueCommandInput> addLineNumber(const Ptr<CommandInputs>& inputs, const std::string& id,
                                         int tableRow) {
    Ptr<BoolValueCommandInput> button =
        inputs->addBoolValueInput(id, decimal(tableRow), /*isCheckBox=*/false,
                                  /*resourceFolder=*/"", /*initialValue=*/false);
    button->isVisible(true);
    return button;
}

CellRow makeCells(const Ptr<CommandInputs>& inputs, const BomRow& row, const std::string& r,
                  int tableRow, const std::string& image) {
    const RowIds& ids = kStructureRows.ids;
    CellRow cells;
    cells.push_back(inputs->addImageCommandInput(ids.icon + r, "", image));
    cells.push_back(addLineNumber(inputs, ids.position + r, tableRow));
    cells.push_back(addReadOnlyField(inputs, ids.graph + r, /*name=*/"", /*value=*/""));
    cells.push_back(addPartNumberField(inputs, ids.partNumber + r, row));
    cells.push_back(addStructureDropDown(inputs, ids.structure + r, row));
    return cells;
}

}  // namespace

void buildStructureTab(Ptr<CommandInputs> inputs) {
    const Ptr<CommandInputs> children =
        addTab(inputs, kStructureRows.tabId, kStructureRows.caption);
    if (!children) {
        return;
    }
    const std::vector<Column> columns = readColumns();
    const Ptr<BoolValueCommandInput> exportButton = addExportButton(children);
    if (!exportButton) {
        return;
    }
    exportButton->isFullWidth(false);
    if (!addSortOrder(children)) {
        return;
    }
    const Ptr<TableCommandInput> table = findOrAddTable(children, kStructureRows, columns);
    if (!table) {
        return;
    }
    const Ptr<StringValueCommandInput> mass =
        children->addStringValueInput(idAllMass, "Total mass of structure BOM [kg] : ", "");
    if (!mass) {
        return;
    }
    mass->isVisible(false);
    table->maximumVisibleRows(kMaximumVisibleRows);
}

void buildStructureTableHeader(const Ptr<TableCommandInput>& table,
                               const std::vector<Column>& columns) {
    const RowIds& ids = kStructureRows.ids;
    std::vector<std::string> headerIds;
    for (const char* prefix : {ids.icon, ids.position, ids.graph, ids.partNumber, ids.structure}) {
        headerIds.push_back(prefix + std::string("0"));
    }
    buildTableHeader(table, headerIds, columns);
}

void fillStructureRows(const Ptr<TableCommandInput>& table, std::vector<BomRow> rows,
                       const std::vector<Column>& columns) {
    if (!table) {
        return;
    }
    const Ptr<CommandInputs> inputs = table->commandInputs();
    StructureFilter filter;
    int tableRow = 1;
    int r = 0;
    for (BomRow& row : rows) {
        ++r;
        if (filter.accept(row)) {
            const std::string image = structureImage(row, filter.isUnderDivided());
            placeCells(table, tableRow, makeCells(inputs, row, decimal(r), tableRow, image));
            fillConfiguredCells(row, table, tableRow, r, columns);
            ++tableRow;
        }
        // The cells of the next rows take the memory.
        dropProperties(row);
    }
}

std::string structureImage(const BomRow& row, bool underDivided) {
    if (row.combined) {
        return row.level > 1 ? kCombineUpImage : kCombineImage;
    }
    if (row.childCount > 0) {
        return underDivided && row.level > 1 ? kAssemblyUpImage : kAssemblyImage;
    }
    return underDivided ? kPartUpImage : kPartImage;
}

}  // namespace tarnix
