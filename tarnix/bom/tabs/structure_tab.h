#pragma once

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/bom/model/columns.h"

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The tab "Structure": the bill of materials proper, each item once with its quantity, after the
/// BOM structure of the components was applied. It is created empty with the dialog; its table is
/// filled the first time that the tab becomes active.
namespace tarnix {

/// Adds the tab with an empty table, the choice of the sort order and the field of the total mass.
///
/// Whatever the host refuses ends it at once, with what is there so far. Where the tab is there
/// already the host returns no second one, so a second call has no effect.
void buildStructureTab(adsk::core::Ptr<adsk::core::CommandInputs> inputs);

/// Fills row 0 with a button for each column. They have ids, unlike those of "Data of Model":
/// sorting distinguishes the columns by them.
void buildStructureTableHeader(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                               const std::vector<Column>& columns);

/// Adds from row 1 on those of `rows`, the rows of a merging walk, that belong to the bill of
/// materials. The ids of cells end in the place of their row in `rows`, counted from 1, so that
/// they have gaps. A null table takes nothing.
void fillStructureRows(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                       std::vector<BomRow> rows, const std::vector<Column>& columns);

/// The image of a row that is shown; `underDivided`: it was handed up.
std::string structureImage(const BomRow& row, bool underDivided);

}  // namespace tarnix
