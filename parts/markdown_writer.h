#pragma once

#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <ostream>
#include <string>
#include <string_view>

namespace parts {

/// A text in which Markdown or HTML finds no markup, in one line.
std::string escapedForMarkdown(std::string_view text);

/// A table for a pull request, with the totals and the conflicts below it. What Markdown or HTML
/// would take for markup is escaped.
void writeMarkdown(const PartsList& list, const NumberFormat& numbers, std::ostream& stream);

}  // namespace parts
