#include "tarnix/bom/tabs/bom_configuration_tab.h"

#include "tarnix/bom/model/columns.h"
#include "tarnix/bom/tabs/row_cells.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/numbers.h"

#include <cstddef>
#include <span>
#include <string>

namespace tarnix {
namespace {

using namespace adsk::core;

constexpr const char* kNotice =
    R"(<div style="background-color:#fefa50" align="center">The changes in the layout of BOM )"
    R"(properties will be applied on tab 'Structure' on the tab 'Data of Model' after clicking )"
    R"(on <span><b>"Save BOM Configuration"</b></span> and re-open this dialog.</div>)";

/// A field of a fixed column, which the user cannot change.
struct FixedField {
    const char* id;
    const char* name;
    const char* value;
};

constexpr FixedField kFixedCaptionFields[] = {
    {.id = "nameCol1", .name = "NameCol1", .value = "Asm."},
    {.id = "nameCol2", .name = "NameCol2", .value = "Pos."},
    {.id = "nameCol3", .name = "NameCol3", .value = "Part Number"},
    {.id = "nameCol4", .name = "NameCol4", .value = "BOM Structure"}};

constexpr FixedField kFixedSampleFields[] = {
    {.id = "colapseRow", .name = "Asm.", .value = "isAsm."},
    {.id = "positionOcc", .name = "Pos.", .value = "1.1"},
    {.id = "partNumberOcc", .name = "Part Number", .value = "Part Number"},
    {.id = "bomStructure", .name = "BOM Structure", .value = "Produce"}};

CellRow makeFixedCells(const Ptr<CommandInputs>& inputs, std::span<const FixedField> fields) {
    CellRow cells;
    for (const FixedField& field : fields) {
        cells.push_back(addReadOnlyField(inputs, field.id, field.name, field.value));
    }
    return cells;
}

void fillPropertyList(const Ptr<ListItems>& list, const std::vector<std::string>& entries) {
    list->clear();
    for (const std::string& entry : entries) {
        list->add(entry, /*isSelected=*/false, /*icon=*/"", /*beforeIndex=*/-1);
    }
}

void setValue(const Ptr<TableCommandInput>& table, int tableRow, int column,
              const std::string& value) {
    const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(tableRow, column);
    cell->value(value);
}

/// Selects every entry that `column` names: a custom property may be called like a fixed entry.
void loadColumn(const Ptr<TableCommandInput>& table, int place, const Column& column,
                const Ptr<DropDownCommandInput>& dropDown) {
    const Ptr<ListItems> list = dropDown->listItems();
    for (std::size_t index = 0; index < list->count(); ++index) {
        const Ptr<ListItem> entry = list->item(index);
        if (kPropertyPrefix + entry->name() == column.key) {
            entry->isSelected(true);
            setValue(table, kCaptionRow, place, column.label);
            setValue(table, kStateRow, place, kUsedState);
        }
    }
}

void loadColumns(const Ptr<TableCommandInput>& table,
                 const std::vector<Ptr<DropDownCommandInput>>& dropDowns) {
    const std::vector<Column> columns = readColumns();
    for (std::size_t q = 0; q < columns.size(); ++q) {
        loadColumn(table, static_cast<int>(q) + kFirstFreeColumn, columns[q], at(dropDowns, q));
    }
}

}  // namespace

void buildBomConfigurationTab(const BomModel& model, Ptr<CommandInputs> inputs) {
    const Ptr<CommandInputs> children = addTab(inputs, kConfigTabId, "BOM Configuration");
    if (!children) {
        return;
    }
    const Ptr<TableCommandInput> table = children->addTableCommandInput(
        kConfigTableId, "ConfigurationBom", kConfigColumns, kConfigRatio);
    if (!table) {
        return;
    }
    buildConfigTableDefaultRow(table);
    buildConfigTableCaptionRow(table);
    buildConfigTableModelRow(model, table);
    children->addTextBoxCommandInput(kConfigNoticeId, "", kNotice, /*numRows=*/2,
                                     /*isReadOnly=*/true);
    children
        ->addBoolValueInput(kSaveConfigId, "Save BOM Configuration", /*isCheckBox=*/false,
                            /*resourceFolder=*/"", /*initialValue=*/true)
        ->isFullWidth(true);
}

void buildConfigTableDefaultRow(const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    CellRow cells;
    for (int column = 0; column < kFirstFreeColumn; ++column) {
        cells.push_back(addReadOnlyField(inputs, "", "", "default"));
    }
    for (int k = 1; k <= kConfigurableColumns; ++k) {
        cells.push_back(addReadOnlyField(inputs, kStateIdPrefix + decimal(k), "", "not used"));
    }
    placeCells(table, kStateRow, cells);
}

void buildConfigTableCaptionRow(const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    CellRow cells = makeFixedCells(inputs, kFixedCaptionFields);
    for (int k = kFirstFreeColumn + 1; k <= kConfigColumns; ++k) {
        cells.push_back(
            inputs->addStringValueInput(kCaptionIdPrefix + decimal(k), "NameCol" + decimal(k), ""));
    }
    placeCells(table, kCaptionRow, cells);
}

void buildConfigTableModelRow(const BomModel& model, const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    CellRow cells = makeFixedCells(inputs, kFixedSampleFields);
    const auto dropDowns = buildPropertyDropDowns(model, table);
    for (const auto& dropDown : dropDowns) {
        dropDown->maxVisibleItems(30);
        cells.push_back(dropDown);
    }
    placeCells(table, kPropertyRow, cells);
    loadColumns(table, dropDowns);
}

std::vector<Ptr<DropDownCommandInput>> buildPropertyDropDowns(const BomModel& model,
                                                              const Ptr<TableCommandInput>& table) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    const std::vector<std::string> entries = offeredEntries(model.userPropertyNames);
    std::vector<Ptr<DropDownCommandInput>> dropDowns;
    for (int k = 0; k < kConfigurableColumns; ++k) {
        const Ptr<DropDownCommandInput> dropDown = inputs->addDropDownCommandInput(
            kPropertyIdBase + ("_" + decimal(k)), "iProperty", TextListDropDownStyle);
        const Ptr<ListItems> list = dropDown->listItems();
        if (!list) {
            return dropDowns;
        }
        fillPropertyList(list, entries);
        dropDowns.push_back(dropDown);
    }
    return dropDowns;
}

}  // namespace tarnix
