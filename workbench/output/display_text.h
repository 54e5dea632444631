#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text as a terminal shows it.
namespace workbench {

/// The text with nothing in it that a terminal would not print as it stands: what is no UTF-8 and
/// control characters become U+FFFD, tabs and line ends a blank. Names come from files of others
/// and must not steer the terminal.
std::string printable(std::string_view text);

/// The number of terminal columns of a printable text: wide East Asian characters take two, what
/// combines with the character before takes none.
std::size_t displayWidth(std::string_view text);

/// True for a plain number with a point, such as "12.5" or "-3": what stands right-aligned.
bool looksLikeNumber(std::string_view text);

}  // namespace workbench
