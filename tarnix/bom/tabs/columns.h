#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The columns that the user configures, which both row tables have behind their five fixed ones.
///
/// The settings hold them as items: a property's key, ";" and the column's label.
namespace tarnix {

/// A configured column.
struct Column {
    std::string key;
    std::string label;
};

/// The most columns that rows have cells for.
inline constexpr int kConfigurableColumns = 6;

/// The columns that every row table has in front of the configured ones.
inline constexpr int kFixedColumns = 5;

/// Splits an item at its first ";"; without one it is its own key and its own label.
Column columnOf(const std::string& item);

/// The items of the settings document.
std::vector<std::string> readColumnItems();

/// The caption of a column: the label, with its unit where it is "Mass", "Area", "Density" or
/// "Volume".
std::string labelWithUnit(const std::string& label);

/// `ratio`, the widths of the five fixed columns, with ":8" for each of `n` configured ones and
/// ":0" for each further column up to the twelfth.
std::string extendColumnRatio(const std::string& ratio, std::size_t n);

/// Places a header button in row 0. `inputs` is the collection that the table stands in.
void addHeader(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
               const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, int column,
               const std::string& id, const std::string& caption);

/// Places the header buttons of all configured columns, also of those that rows have no cells for.
void addConfiguredHeaders(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                          const adsk::core::Ptr<adsk::core::CommandInputs>& inputs,
                          const std::vector<std::string>& items);

/// Places the six configured cells of a row into `tableRow`, empty ones behind the last item.
///
/// The id of a cell is its key, "_" and a number: `tableRow` in the table "QEMA_bom_models",
/// `rowId` in "QEMA_bom_structure". In any other table nothing is made.
void fillConfiguredCells(const BomRow& row,
                         const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int tableRow,
                         int rowId, const std::vector<std::string>& items);

}  // namespace tarnix
