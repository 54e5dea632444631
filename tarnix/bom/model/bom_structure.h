#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <array>
#include <string>

namespace tarnix {

/// The values that a component's BOM structure can have, in the order of every drop-down. Each is a
/// property of its own that holds "1" or "0".
inline constexpr std::array<const char*, 5> kBomStructures = {"Produce", "Buy", "AsPart", "Divided",
                                                              "Reference"};

/// True when the row has an entry of that key with the value exactly "1"; an entry of that key with
/// another value does not end the search.
bool isPropertySet(const BomRow& row, const std::string& key);

/// The key of the row's first entry whose value is exactly "1", an empty string where there is
/// none. All entries are looked at: a part number, or a custom property, of "1" in front of the
/// structure's keys wins.
std::string firstSetProperty(const BomRow& row);

}  // namespace tarnix
