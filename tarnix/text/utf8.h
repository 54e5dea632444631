#pragma once

#include <string>
#include <string_view>

namespace tarnix {

/// `text` in UTF-8.
///
/// Wide characters are UTF-16 or UTF-32, as the system has them; half a surrogate pair becomes the
/// replacement character U+FFFD.
std::string toUtf8(std::wstring_view text);

}  // namespace tarnix
