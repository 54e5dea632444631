#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>
#include <vector>

/// The write-back of the BOM dialog: what the cells of the active tab's table hold goes into
/// the design, row by row.
namespace tarnix {

/// Writes the table of the active tab into the active design; nothing on the tab "BOM
/// Configuration", and nothing without a design. What the other tab holds is dropped.
///
/// What is thrown ends the write, and what was written stays written.
void writeActiveTable(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs);

/// Writes every data row of `table`, hidden ones too, into the component of its row in the walk
/// over `occurrences`: the merging walk unless `matching` is empty. That is all that `matching` is
/// asked.
///
/// The last row of a component wins. A cell whose id carries another row's number is not written.
/// Of a row that merges differently named components only the description is touched: its first 15
/// characters, the length of the merge marker, are cut off; one that is shorter, but not empty,
/// throws "invalid string position".
void writeBomTable(adsk::core::Ptr<adsk::fusion::OccurrenceList> occurrences,
                   std::vector<adsk::core::Ptr<adsk::fusion::Occurrence>> matching,
                   adsk::core::Ptr<adsk::core::TableCommandInput> table,
                   std::string partNumberPrefix, std::string bomStructurePrefix);

/// Whether a cell's id names a custom property: what is between its first and its last "_" is
/// no built-in name.
bool isCustomPropertyId(std::string id);

}  // namespace tarnix
