#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>

#include <string>

/// The inputs that the tabs "Data of Model" and "Structure" have in common.
namespace tarnix {

/// The five inputs of a row's fixed columns, in their order.
struct FixedCells {
    adsk::core::Ptr<adsk::core::CommandInput> icon;
    adsk::core::Ptr<adsk::core::CommandInput> position;
    adsk::core::Ptr<adsk::core::CommandInput> graph;
    adsk::core::Ptr<adsk::core::CommandInput> partNumber;
    adsk::core::Ptr<adsk::core::CommandInput> structure;
};

/// Places the cells in columns 0 to 4.
void placeFixedCells(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int tableRow,
                     const FixedCells& cells);

/// The button "Export BOM to MS Excel"; null where the host refuses it.
adsk::core::Ptr<adsk::core::BoolValueCommandInput> addExportButton(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

/// A string input that the user cannot change.
adsk::core::Ptr<adsk::core::StringValueCommandInput> addReadOnlyText(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const std::string& name, const std::string& value);

/// The drop-down of a row's BOM structure. What the row has set is selected, and "Produce" where
/// the row has nothing set at all.
adsk::core::Ptr<adsk::core::DropDownCommandInput> addStructureDropDown(
    const adsk::core::Ptr<adsk::core::CommandInputs>& inputs, const std::string& id,
    const BomRow& row);

}  // namespace tarnix
