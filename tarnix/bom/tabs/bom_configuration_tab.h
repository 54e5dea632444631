#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>

#include <vector>

/// The tab "BOM Configuration": where the user chooses the six free columns of the other two tabs.
/// It shows a small model of a row, with a drop-down of all properties for each free column, loaded
/// from the settings as the dialog opens.
namespace tarnix {

/// Adds the tab. `model` offers the custom properties met in the design.
///
/// Without a tab, its children or a table nothing more is made. More than six columns in the
/// settings throw `std::out_of_range` ("invalid vector subscript").
void buildBomConfigurationTab(const BomModel& model,
                              adsk::core::Ptr<adsk::core::CommandInputs> inputs);

/// Row 0: the state of each column, "default" for the fixed ones, "not used" for the free ones.
void buildConfigTableDefaultRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Row 1: the captions; those of the free columns are the user's to write.
void buildConfigTableCaptionRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Row 2: sample values and the six drop-downs, and what the settings hold, the item at an index in
/// the drop-down of that index.
void buildConfigTableModelRow(const BomModel& model,
                              const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Makes the six drop-downs, in the order of their ids, with nothing selected; those made so far
/// where the host returns one without a list.
std::vector<adsk::core::Ptr<adsk::core::DropDownCommandInput>> buildPropertyDropDowns(
    const BomModel& model, const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

}  // namespace tarnix
