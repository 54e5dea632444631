#pragma once

#include <Core/CoreAll.h>

#include <string>

/// Sorting as plainly as it can be written, with all rows looked through again for each of them.
/// Slow on purpose: the product's own is compared with it.
namespace reference {

void sortStructureTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                        const adsk::core::Ptr<adsk::core::CommandInput>& input,
                        const std::string& orderText);

}  // namespace reference
