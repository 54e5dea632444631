#pragma once

#include <Core/CoreAll.h>

#include <string>

/// What several behaviours ask of a row of the dialog's tables.
namespace tarnix {

/// The position in column 1 without its indent: the text of a text box, else the name of a button.
///
/// A cell that is neither throws a plain `std::exception`, and so does a row that is not there.
std::string positionOfRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

/// Hides the cells of columns 0 to `numberOfColumns`, that column included; the last column of
/// these tables has that number. A missing cell throws a plain `std::exception`.
void hideRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

}  // namespace tarnix
