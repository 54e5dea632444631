#pragma once

#include <string>
#include <string_view>

namespace tarnix {

/// `text` in UTF-8.
///
/// Wide characters are UTF-16 or UTF-32, as the system has them; half a surrogate pair becomes the
/// replacement character U+FFFD.
std::string toUtf8(std::wstring_view text);

/// A UTF-8 string in UTF-16; throws `std::range_error` ("bad conversion") for bytes that are none.
std::u16string utf16FromUtf8(std::string_view text);

}  // namespace tarnix
