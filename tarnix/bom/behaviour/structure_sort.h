#pragma once

#include "tarnix/bom/tabs/row_cells.h"

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>
#include <vector>

/// Sorting of the Structure table by the column whose header was clicked.
///
/// The sort is flat: every data row is a unit of its own. It works on the table's cells alone, and
/// moves the rows after the others one by one, so cells keep their ids, values and visibility.
namespace tarnix {

/// Sorts the data rows of `table` by the column of `input`, a header cell, in the order "Ascending"
/// or "Descending"; any other order, and the columns of the icon and of the graph, move nothing.
///
/// The line number, and a property column with a number other than zero in it, sort by number; the
/// others by text, byte by byte. Equal values are ordered by their ids as texts, reversed as well
/// in a descending order. A row whose cell has no text is not moved.
///
/// Throws "invalid vector subscript" for a table without data rows, and as `isNumericColumn` does;
/// the table stays as it was then.
void sortStructureTable(adsk::core::Ptr<adsk::core::TableCommandInput> table,
                        adsk::core::Ptr<adsk::core::CommandInput> input,
                        const std::string& orderText);

/// Whether any of the column's text fields holds a number other than zero. No cell is null.
///
/// Every one of them is read as a number: an empty one, and a text that begins with none, throws
/// "invalid stod argument".
bool isNumericColumn(const std::vector<CellRow>& rows, std::size_t column);

}  // namespace tarnix
