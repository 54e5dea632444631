#pragma once

#include <Core/CoreAll.h>

/// Folding of assembly rows in the table "Data of Model".
///
/// Rows are not taken out, their cells are hidden. Which row lies below which is read from the
/// dotted positions in column 1; whether a row is folded, from the value of its toggle in column 0
/// alone. The icon of the clicked row goes by what was done, that of a row that is shown or hidden
/// by its toggle's value, and the two senses are opposite; both are kept so.
namespace tarnix {

/// Folds or unfolds below the row whose toggle was clicked, on the tab that is active.
///
/// On the tab "Structure" column 0 holds images: a click there throws a plain `std::exception`.
void toggleRowCollapse(adsk::core::Ptr<adsk::core::CommandInput> input);

/// Hides all rows after `row` that lie below it, or shows those directly below it and, for each of
/// these, what its own toggle says.
///
/// Nothing for row 0, and for a row that is not there. A row without a toggle, or without a
/// position, throws a plain `std::exception`.
void collapseRows(adsk::core::Ptr<adsk::core::TableCommandInput> table, int row, bool showChildren);

/// Shows or hides the cells of a row, except its position, and gives an assembly the icon that its
/// toggle's value asks for. In a table that is not one of the dialog's two, only the icon.
void setRowVisible(adsk::core::Ptr<adsk::core::TableCommandInput> table, int row, bool visible);

}  // namespace tarnix
