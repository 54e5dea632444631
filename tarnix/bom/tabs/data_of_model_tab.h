#pragma once

#include "tarnix/bom/model/bom_row.h"
#include "tarnix/bom/model/columns.h"

#include <Core/CoreAll.h>

#include <vector>

/// The tab "Data of Model": every occurrence of the design as one row of a table, in the order of
/// the plain walk, with a drawing of the tree. It is built filled, once, while the dialog is
/// created, and shows the rows at the top until the user opens the assemblies.
namespace tarnix {

/// Adds the tab with the rows of `model`.
///
/// A host that returns no tab, no children of it or no table leaves the tab out, or empty. Any
/// other refused input throws a plain `std::exception`.
void buildDataOfModelTab(BomModel& model, adsk::core::Ptr<adsk::core::CommandInputs> inputs);

/// Fills row 0 with a button for each of the five fixed columns and each of `columns`.
void buildModelTableHeader(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                           const std::vector<Column>& columns);

/// Adds a row after those of the table for each of `rows`, which are those of a plain walk.
void fillModelTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                    const std::vector<BomRow>& rows, const std::vector<Column>& columns);

}  // namespace tarnix
