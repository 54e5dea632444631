#include "tarnix/bom/tabs/columns.h"

#include "tarnix/bom/model/cell_text.h"
#include "tarnix/bom/tabs/bom_ids.h"
#include "tarnix/settings/settings_document.h"
#include "tarnix/text/numbers.h"
#include "tarnix/text/utf8.h"

namespace tarnix {
namespace {

using adsk::core::CommandInputs;
using adsk::core::Ptr;
using adsk::core::TableCommandInput;

}  // namespace

Column columnOf(const std::string& item) {
    const auto separator = item.find(';');
    if (separator == std::string::npos) {
        return {item, item};
    }
    return {item.substr(0, separator), item.substr(separator + 1)};
}

std::vector<std::string> readColumnItems() { return readCategoryItems("category", "bomItems"); }

std::string labelWithUnit(const std::string& label) {
    if (label == "Mass") {
        return label + " [kg]";
    }
    if (label == "Area") {
        return label + " [cm" + toUtf8(L"\u00B2") + "]";
    }
    if (label == "Density") {
        return label + " [kg/m" + toUtf8(L"\u00B3") + "]";
    }
    if (label == "Volume") {
        return label + " [cm" + toUtf8(L"\u00B3") + "]";
    }
    return label;
}

std::string extendColumnRatio(const std::string& ratio, std::size_t n) {
    constexpr std::size_t kColumns = 12;
    std::string extended = ratio;
    for (std::size_t column = 0; column < n; ++column) {
        extended += ":8";
    }
    for (std::size_t column = kFixedColumns + n; column < kColumns; ++column) {
        extended += ":0";
    }
    return extended;
}

void addHeader(const Ptr<TableCommandInput>& table, const Ptr<CommandInputs>& inputs, int column,
               const std::string& id, const std::string& caption) {
    table->addCommandInput(inputs->addBoolValueInput(id, caption, /*isCheckBox=*/false, "", false),
                           0, column, 0, 0);
}

void addConfiguredHeaders(const Ptr<TableCommandInput>& table, const Ptr<CommandInputs>& inputs,
                          const std::vector<std::string>& items) {
    int place = kFixedColumns;
    for (const auto& item : items) {
        const Column column = columnOf(item);
        addHeader(table, inputs, place, column.key + "_0", labelWithUnit(column.label));
        ++place;
    }
}

void fillConfiguredCells(const BomRow& row, const Ptr<TableCommandInput>& table, int tableRow,
                         int rowId, const std::vector<std::string>& items) {
    const std::string tableId = table->id();
    if (tableId != kModelTableId && tableId != kStructureTableId) {
        return;
    }
    const std::string number = decimal(tableId == kModelTableId ? tableRow : rowId);
    const Ptr<CommandInputs> inputs = table->commandInputs();
    for (int k = 0; k < kConfigurableColumns; ++k) {
        Column column;
        std::string value;
        if (const auto index = static_cast<std::size_t>(k); index < items.size()) {
            column = columnOf(items[index]);
            value = bomCellValue(row, column.key);
        }
        const auto cell =
            inputs->addStringValueInput(column.key + "_" + number, column.label, value);
        table->addCommandInput(cell, tableRow, kFixedColumns + k, 0, 0);
    }
}

}  // namespace tarnix
