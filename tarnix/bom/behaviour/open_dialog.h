#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <string>

/// What several behaviours ask of the open BOM dialog, and of the design below it.
namespace tarnix {

/// The root component of the design that is open; null without an application, an active product,
/// or a product that is a design.
adsk::core::Ptr<adsk::fusion::Component> activeRootComponent();

/// The root component of `product`; null where it is no design.
adsk::core::Ptr<adsk::fusion::Component> rootComponentOf(
    const adsk::core::Ptr<adsk::core::Product>& product);

/// The two tabs that show rows; null where the dialog has none.
struct RowTabs {
    adsk::core::Ptr<adsk::core::TabCommandInput> structure;
    adsk::core::Ptr<adsk::core::TabCommandInput> model;
};
RowTabs rowTabs(const adsk::core::Ptr<adsk::core::CommandInputs>& inputs);

/// All inputs of the dialog that `input`, which has a parent, belongs to.
adsk::core::Ptr<adsk::core::CommandInputs> dialogInputsOf(
    const adsk::core::Ptr<adsk::core::CommandInput>& input);

/// The first selected item of a list, null where none is selected. A missing list or item throws a
/// plain `std::exception`.
adsk::core::Ptr<adsk::core::ListItem> firstSelected(
    const adsk::core::Ptr<adsk::core::ListItems>& items);

/// The position in column 1 without its indent: the text of a text box, else the name of a button.
///
/// A cell that is neither throws a plain `std::exception`, and so does a row that is not there.
std::string positionOfRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

/// Hides the cells of columns 0 to `numberOfColumns`, that column included; the last column of
/// these tables has that number. A missing cell throws a plain `std::exception`.
void hideRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

}  // namespace tarnix
