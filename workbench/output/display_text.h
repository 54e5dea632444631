#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text as a terminal shows it.
namespace workbench {

/// The text with only what a terminal prints as it is: bytes that are not UTF-8, control characters
/// and those that change the direction of writing become U+FFFD, tabs and line ends a space. Names
/// come from files of others and must neither control the terminal nor show in another order.
std::string printable(std::string_view text);

/// The number of terminal columns of a printable text: wide East Asian characters take two,
/// combining characters none.
std::size_t displayWidth(std::string_view text);

/// The beginning of a printable text that takes no more than so many terminal columns, with "..."
/// at its end where it was cut.
std::string fitted(std::string_view text, std::size_t columns);

/// A text of several lines with only what a terminal prints as it is; line ends and tabs stay.
std::string printableLines(std::string_view text);

/// True for a plain number with a point, such as "12.5" or "-3": what is right-aligned.
bool looksLikeNumber(std::string_view text);

/// The names in quotes, with commas between them; "none" where there are none.
std::string quoted(const std::vector<std::string>& names);

}  // namespace workbench
