#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace step {

/// The most bytes of a string that Open CASCADE is sure to read, as the file has them.
inline constexpr std::size_t kLongestString = 16'000;

struct LongString {
    std::size_t line = 0;   ///< in which it begins, from 1
    std::size_t bytes = 0;  ///< between its quotes
};

/// The longest string of a STEP file, where that may be too long to be read.
std::optional<LongString> findLongString(std::string_view text);

}  // namespace step
