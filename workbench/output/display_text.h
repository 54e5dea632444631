#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

/// Text as a terminal shows it.
namespace workbench {

/// The text with only what a terminal prints as it is: bytes that are not UTF-8 and control
/// characters become U+FFFD, tabs and line ends a space. Names come from files of others and must
/// not control the terminal.
std::string printable(std::string_view text);

/// The number of terminal columns of a printable text: wide East Asian characters take two,
/// combining characters none.
std::size_t displayWidth(std::string_view text);

/// True for a plain number with a point, such as "12.5" or "-3": what is right-aligned.
bool looksLikeNumber(std::string_view text);

/// The names in quotes, with commas between them; "none" where there are none.
std::string quoted(const std::vector<std::string>& names);

}  // namespace workbench
