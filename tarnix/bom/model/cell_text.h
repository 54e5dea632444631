#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <string>

namespace tarnix {

/// The text of a configured cell: the column of `key`, a property's name behind its prefix.
///
/// Area is in cm2, volume in cm3, mass in kg, density in kg/m3, lengths are in mm along the axes of
/// the component's own box. Whatever else the key names is looked for in the row's properties, the
/// last one of that key, else the cell is empty. Each call asks the host again. Throws
/// `std::out_of_range` ("invalid string position") for a key shorter than the prefix.
std::string bomCellValue(const BomRow& row, const std::string& key);

}  // namespace tarnix
