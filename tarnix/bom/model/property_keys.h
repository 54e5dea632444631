#pragma once

#include "tarnix/text/checked.h"

#include <cstddef>
#include <string>

namespace tarnix {

/// Stands in front of the name of a property or of a column in its key.
inline constexpr const char* kPropertyPrefix = "QEMA_";

/// A key without its prefix, whatever the prefix is. Throws `std::out_of_range` ("invalid string
/// position") for a key that is shorter than that.
inline std::string withoutPrefix(const std::string& key) {
    constexpr std::size_t kPrefixLength = 5;
    return substringFrom(key, kPrefixLength);
}

}  // namespace tarnix
