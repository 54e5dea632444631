#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Text of options and captions, in which letters beyond ASCII are left as they are.
namespace parts {

/// Without the spaces around it.
std::string_view trimmed(std::string_view text);

/// In small letters.
std::string lowerCase(std::string_view text);

/// With ", " between them.
std::string withCommas(const std::vector<std::string>& texts);

}  // namespace parts
