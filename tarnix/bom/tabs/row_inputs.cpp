#include "tarnix/bom/tabs/row_inputs.h"

#include "tarnix/bom/model/bom_structure.h"
#include "tarnix/bom/tabs/bom_ids.h"

namespace tarnix {

using adsk::core::BoolValueCommandInput;
using adsk::core::CommandInputs;
using adsk::core::DropDownCommandInput;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TableCommandInput;
using adsk::core::TextListDropDownStyle;

void placeFixedCells(const Ptr<TableCommandInput>& table, int tableRow, const FixedCells& cells) {
    table->addCommandInput(cells.icon, tableRow, 0, 0, 0);
    table->addCommandInput(cells.position, tableRow, 1, 0, 0);
    table->addCommandInput(cells.graph, tableRow, 2, 0, 0);
    table->addCommandInput(cells.partNumber, tableRow, 3, 0, 0);
    table->addCommandInput(cells.structure, tableRow, 4, 0, 0);
}

Ptr<BoolValueCommandInput> addExportButton(const Ptr<CommandInputs>& inputs) {
    return inputs->addBoolValueInput(kExportId, "Export BOM to MS Excel", /*isCheckBox=*/false,
                                     "././Resources/BOM/BtnExport", true);
}

Ptr<StringValueCommandInput> addReadOnlyText(const Ptr<CommandInputs>& inputs,
                                             const std::string& id, const std::string& name,
                                             const std::string& value) {
    Ptr<StringValueCommandInput> text = inputs->addStringValueInput(id, name, value);
    text->isReadOnly(true);
    return text;
}

Ptr<DropDownCommandInput> addStructureDropDown(const Ptr<CommandInputs>& inputs,
                                               const std::string& id, const BomRow& row) {
    Ptr<DropDownCommandInput> dropDown =
        inputs->addDropDownCommandInput(id, "BOM Structure", TextListDropDownStyle);
    const Ptr<ListItems> items = dropDown->listItems();
    for (const char* structure : kBomStructures) {
        items->add(structure, isPropertySet(row, structure), "", -1);
    }
    if (firstSetProperty(row).empty()) {
        items->item(0)->isSelected(true);
    }
    return dropDown;
}

}  // namespace tarnix
