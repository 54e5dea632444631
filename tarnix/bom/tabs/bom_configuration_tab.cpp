#include "tarnix/bom/tabs/bom_configuration_tab.h"

#include "tarnix/bom/model/property_keys.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/bom/tabs/columns.h"
#include "tarnix/bom/tabs/row_inputs.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/numbers.h"

#include <string>

namespace tarnix {
namespace {

using adsk::core::CommandInput;
using adsk::core::CommandInputs;
using adsk::core::DropDownCommandInput;
using adsk::core::ListItem;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TabCommandInput;
using adsk::core::TableCommandInput;
using adsk::core::TextListDropDownStyle;

using Inputs = std::vector<Ptr<CommandInput>>;

/// The column of the first drop-down; the four in front of it cannot be changed.
constexpr int kFirstFreeColumn = 4;

constexpr const char* kNotice =
    R"(<div style="background-color:#fefa50" align="center">The changes in the layout of BOM )"
    R"(properties will be applied on tab 'Structure' on the tab 'Data of Model' after clicking )"
    R"(on <span><b>"Save BOM Configuration"</b></span> and re-open this dialog.</div>)";

/// What every drop-down begins with. The lines with dashes are entries like the others.
constexpr const char* kFixedEntries[] = {"---Select One---",
                                         "Quantity",
                                         "--- Model Property ---",
                                         "Part Name",
                                         "Description",
                                         "Area",
                                         "Density",
                                         "Mass",
                                         "Volume",
                                         "Physical Material",
                                         "Length",
                                         "Width",
                                         "Height",
                                         "Bounding Box",
                                         "--- User Property ---"};

void placeRow(const Ptr<TableCommandInput>& table, int tableRow, const Inputs& cells) {
    int column = 0;
    for (const auto& cell : cells) {
        table->addCommandInput(cell, tableRow, column, 0, 0);
        ++column;
    }
}

void fillPropertyList(const Ptr<ListItems>& list, const std::vector<std::string>& userProperties) {
    list->clear();
    for (const char* entry : kFixedEntries) {
        list->add(entry, false, "", -1);
    }
    for (const auto& name : userProperties) {
        list->add(name, false, "", -1);
    }
}

void setText(const Ptr<TableCommandInput>& table, int tableRow, int column,
             const std::string& text) {
    const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(tableRow, column);
    cell->value(text);
}

/// Selects every entry that `column` names: a custom property may be called like a fixed entry.
void loadColumn(const Ptr<TableCommandInput>& table, int place, const Column& column,
                const Ptr<DropDownCommandInput>& dropDown) {
    const Ptr<ListItems> list = dropDown->listItems();
    for (std::size_t index = 0; index < list->count(); ++index) {
        const Ptr<ListItem> entry = list->item(index);
        if (kPropertyPrefix + entry->name() == column.key) {
            entry->isSelected(true);
            setText(table, 1, place, column.label);
            setText(table, 0, place, "used");
        }
    }
}

void loadColumns(const Ptr<TableCommandInput>& table,
                 const std::vector<Ptr<DropDownCommandInput>>& dropDowns) {
    const std::vector<std::string> items = readColumnItems();
    for (std::size_t q = 0; q < items.size(); ++q) {
        loadColumn(table, static_cast<int>(q) + kFirstFreeColumn, columnOf(items[q]),
                   at(dropDowns, q));
    }
}

}  // namespace

void buildBomConfigurationTab(const BomModel& model, Ptr<CommandInputs> inputs) {
    const Ptr<TabCommandInput> tab =
        inputs->addTabCommandInput(kConfigTabId, "BOM Configuration", "");
    const Ptr<CommandInputs> children = tab ? tab->children() : nullptr;
    if (!children) {
        return;
    }
    const Ptr<TableCommandInput> table = children->addTableCommandInput(
        kConfigTableId, "ConfigurationBom", 10, "3:3:6:7:8:8:8:8:8:8");
    if (!table) {
        return;
    }
    buildConfigTableDefaultRow(table);
    buildConfigTableCaptionRow(table);
    buildConfigTableModelRow(model, table);
    children->addTextBoxCommandInput("fullWidth_textBox", "", kNotice, 2, /*isReadOnly=*/true);
    children
        ->addBoolValueInput(kSaveConfigId, "Save BOM Configuration", /*isCheckBox=*/false, "", true)
        ->isFullWidth(true);
}

void buildConfigTableDefaultRow(const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    Inputs cells;
    for (int column = 0; column < kFirstFreeColumn; ++column) {
        cells.push_back(addReadOnlyText(inputs, "", "", "default"));
    }
    for (int k = 1; k <= kConfigurableColumns; ++k) {
        cells.push_back(addReadOnlyText(inputs, "colUsrHeader_" + decimal(k), "", "not used"));
    }
    placeRow(table, 0, cells);
}

void buildConfigTableCaptionRow(const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    Inputs cells;
    cells.push_back(addReadOnlyText(inputs, "nameCol1", "NameCol1", "Asm."));
    cells.push_back(addReadOnlyText(inputs, "nameCol2", "NameCol2", "Pos."));
    cells.push_back(addReadOnlyText(inputs, "nameCol3", "NameCol3", "Part Number"));
    cells.push_back(addReadOnlyText(inputs, "nameCol4", "NameCol4", "BOM Structure"));
    for (int k = 5; k <= 10; ++k) {
        cells.push_back(
            inputs->addStringValueInput("nameCol" + decimal(k), "NameCol" + decimal(k), ""));
    }
    placeRow(table, 1, cells);
}

void buildConfigTableModelRow(const BomModel& model, const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    Inputs cells;
    cells.push_back(addReadOnlyText(inputs, "colapseRow", "Asm.", "isAsm."));
    cells.push_back(addReadOnlyText(inputs, "positionOcc", "Pos.", "1.1"));
    cells.push_back(addReadOnlyText(inputs, "partNumberOcc", "Part Number", "Part Number"));
    cells.push_back(addReadOnlyText(inputs, "bomStructure", "BOM Structure", "Produce"));
    const auto dropDowns = buildPropertyDropDowns(model, table);
    for (const auto& dropDown : dropDowns) {
        dropDown->maxVisibleItems(30);
        cells.push_back(dropDown);
    }
    placeRow(table, 2, cells);
    loadColumns(table, dropDowns);
}

std::vector<Ptr<DropDownCommandInput>> buildPropertyDropDowns(const BomModel& model,
                                                              const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    std::vector<Ptr<DropDownCommandInput>> dropDowns;
    for (int k = 0; k < kConfigurableColumns; ++k) {
        const Ptr<DropDownCommandInput> dropDown = inputs->addDropDownCommandInput(
            "iProperty_" + decimal(k), "iProperty", TextListDropDownStyle);
        const Ptr<ListItems> list = dropDown->listItems();
        if (!list) {
            return dropDowns;
        }
        fillPropertyList(list, model.userPropertyNames);
        dropDowns.push_back(dropDown);
    }
    return dropDowns;
}

}  // namespace tarnix
