#pragma once

#include "workbench/cli/console.h"
#include "workbench/output/text_table.h"

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <cstddef>
#include <string>

namespace workbench {

/// The list as aligned columns for a terminal, a tree indented by its levels, with the totals, the
/// conflicts and the possible duplicates below it. Rows whose material is assumed, or that could
/// not be measured, say so in a last column. For `width` see `TextTable::text`.
std::string partsTable(const parts::PartsList& list, const parts::NumberFormat& numbers,
                       console::Charset charset, std::size_t width = TextTable::kUnlimited);

}  // namespace workbench
