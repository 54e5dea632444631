#pragma once

#include <Core/CoreAll.h>

#include <string>

namespace test_support {

/// The rows of a BOM table: position, picture, part number, and the shown configured columns.
std::string bomText(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Everything a table shows, the first row included.
std::string tableText(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

}  // namespace test_support
