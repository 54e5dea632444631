#pragma once

#include "tarnix/bom/model/columns.h"

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// What brings a tab of the BOM dialog up to date when it becomes active.
///
/// The Structure table is filled when its tab is first active, and not again, so edits in its cells
/// survive a change of tab; the total mass is summed up each time.
namespace tarnix {

/// Answers a change of the tab.
///
/// On the tab "Structure" rows that nothing has hidden are shown whole, the total mass is put into
/// its field, and the columns get their widths. Without an active design it ends after the rows.
/// On the tab "Data of Model" the header row is shown and the columns get their widths. The third
/// tab stays as it is.
void refreshOnTabChange(adsk::core::Ptr<adsk::core::InputChangedEventArgs> eventArgs);

/// Fills the table if it is empty, and then looks for rows of the structure "Reference".
void refreshStructureTable(adsk::core::Ptr<adsk::core::CommandInputs> inputs,
                           adsk::core::Ptr<adsk::core::TableCommandInput> table);

/// Builds header and rows of an empty table from the design; nothing without one.
void fillStructureTable(adsk::core::Ptr<adsk::core::CommandInputs> inputs,
                        adsk::core::Ptr<adsk::core::TableCommandInput> table);

/// A mass in kilograms with three decimals.
std::string formatMass(double kilograms);

/// The widths of the eleven columns of one of the two tables: five fixed ones, then a width for
/// each configured column and none for a slot that is not configured.
std::string makeColumnRatio(adsk::core::Ptr<adsk::core::TableCommandInput> table,
                            const std::vector<Column>& columns);

}  // namespace tarnix
