#pragma once

#include "workbench/cli/console.h"

#include "parts/compare.h"
#include "parts/number_text.h"

#include <string>

namespace workbench {

/// What changed, as a table with a line for each change and a sum below it; a line without a table
/// where nothing did. Ends with a line end, as all of these do.
std::string comparisonTable(const parts::ListComparison& comparison,
                            const parts::NumberFormat& numbers, console::Charset charset,
                            std::size_t width);

/// The same for a pull request.
std::string comparisonMarkdown(const parts::ListComparison& comparison,
                               const parts::NumberFormat& numbers);

/// The same for programs; numbers keep all their digits:
///
///     {"format": "tarnix-comparison", "version": 1, "old": FILE, "new": FILE, "unchanged": COUNT,
///      "changes": [{"change": "quantity", "item": "P-7", "column": "Quantity",
///                   "old": 4, "new": 6}]}
std::string comparisonJson(const parts::ListComparison& comparison);

}  // namespace workbench
