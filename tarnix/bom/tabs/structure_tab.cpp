#include "tarnix/bom/tabs/structure_tab.h"

#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/bom/tabs/columns.h"
#include "tarnix/bom/tabs/row_inputs.h"
#include "tarnix/bom/tabs/structure_filter.h"
#include "tarnix/text/numbers.h"

namespace tarnix {
namespace {

using adsk::core::BoolValueCommandInput;
using adsk::core::CommandInputs;
using adsk::core::DropDownCommandInput;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TabCommandInput;
using adsk::core::TableCommandInput;
using adsk::core::TextListDropDownStyle;

/// False where the host refused the drop-down or its items.
bool addSortOrder(const Ptr<CommandInputs>& inputs) {
    const Ptr<DropDownCommandInput> order = inputs->addDropDownCommandInput(
        kSortOrderId, "BOM can be sorted by clicking on the column header:", TextListDropDownStyle);
    const Ptr<ListItems> items = order ? order->listItems() : nullptr;
    return items && items->add("Ascending", false, "", -1) &&
           items->add("Descending", false, "", -1);
}

Ptr<TableCommandInput> findOrAddTable(const Ptr<CommandInputs>& inputs,
                                      const std::vector<std::string>& items,
                                      const std::string& ratio) {
    Ptr<TableCommandInput> table = inputs->itemById(kStructureTableId);
    if (!table) {
        table = inputs->addTableCommandInput(kStructureTableId, "Structure",
                                             static_cast<int>(items.size()) + 4, ratio);
    }
    return table;
}

/// The line number is the button's caption.
Ptr<BoolValueCommandInput> addLineNumber(const Ptr<CommandInputs>& inputs, const std::string& r,
                                         int tableRow) {
    Ptr<BoolValueCommandInput> button = inputs->addBoolValueInput(
        "positionOcc_" + r, decimal(tableRow), /*isCheckBox=*/false, "", /*initialValue=*/false);
    button->isVisible(true);
    return button;
}

FixedCells makeCells(const Ptr<CommandInputs>& inputs, const BomRow& row, const std::string& r,
                     int tableRow, const std::string& image) {
    FixedCells cells;
    cells.icon = inputs->addImageCommandInput("colapseRow_" + r, "", image);
    cells.position = addLineNumber(inputs, r, tableRow);
    cells.graph = addReadOnlyText(inputs, "graphPositionOcc_" + r, "", "");
    cells.partNumber = inputs->addStringValueInput("partNumberOcc_" + r, "Part Number",
                                                   row.component->partNumber());
    cells.structure = addStructureDropDown(inputs, "bomStructure_" + r, row);
    return cells;
}

}  // namespace

void buildStructureTab(Ptr<CommandInputs> inputs) {
    const Ptr<TabCommandInput> tab = inputs->addTabCommandInput(kStructureTabId, "Structure", "");
    const Ptr<CommandInputs> children = tab ? tab->children() : nullptr;
    if (!children) {
        return;
    }
    const std::vector<std::string> items = readColumnItems();
    const std::string ratio = extendColumnRatio("2:3:0:12:8", items.size());
    const Ptr<BoolValueCommandInput> exportButton = addExportButton(children);
    if (!exportButton) {
        return;
    }
    exportButton->isFullWidth(false);
    if (!addSortOrder(children)) {
        return;
    }
    const Ptr<TableCommandInput> table = findOrAddTable(children, items, ratio);
    if (!table) {
        return;
    }
    const Ptr<StringValueCommandInput> mass =
        children->addStringValueInput(idAllMass, "Total mass of structure BOM [kg] : ", "");
    if (!mass) {
        return;
    }
    mass->isVisible(false);
    table->maximumVisibleRows(1000);
}

void buildStructureTableHeader(const Ptr<TableCommandInput>& table,
                               const std::vector<std::string>& items) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    addHeader(table, inputs, 0, "colapseRow_0", "");
    addHeader(table, inputs, 1, "positionOcc_0", "Pos.");
    addHeader(table, inputs, 2, "graphPositionOcc_0", "");
    addHeader(table, inputs, 3, "partNumberOcc_0", "Part Number");
    addHeader(table, inputs, 4, "bomStructure_0", "BOM Structure");
    addConfiguredHeaders(table, inputs, items);
}

void fillStructureRows(const Ptr<TableCommandInput>& table, const std::vector<BomRow>& rows,
                       const std::vector<std::string>& items) {
    if (!table) {
        return;
    }
    const Ptr<CommandInputs> inputs = table->commandInputs();
    StructureFilter filter;
    int tableRow = 1;
    int r = 0;
    for (const BomRow& row : rows) {
        ++r;
        if (!filter.accept(row)) {
            continue;
        }
        const std::string image = structureImage(row, filter.isUnderDivided());
        placeFixedCells(table, tableRow, makeCells(inputs, row, decimal(r), tableRow, image));
        fillConfiguredCells(row, table, tableRow, r, items);
        ++tableRow;
    }
}

std::string structureImage(const BomRow& row, bool underDivided) {
    if (row.combined) {
        return row.level > 1 ? "././Resources/BOM/CombineUp.png" : "././Resources/BOM/Combine.png";
    }
    if (row.childCount > 0) {
        return underDivided && row.level > 1 ? "././Resources/BOM/AsmUp.png"
                                             : "././Resources/BOM/Asm.png";
    }
    return underDivided ? "././Resources/BOM/PartUp.png" : "././Resources/BOM/Part.png";
}

}  // namespace tarnix
