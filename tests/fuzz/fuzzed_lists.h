#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace fuzz {

/// Reads edited parts lists that are made of bytes: the bytes themselves; an export with values of
/// them, none of whose lines may be taken for an edited one; and the same list with each field in
/// quotes, which has to be read as it was. Returns what it found wrong, empty for nothing.
std::string readEditedLists(std::span<const std::uint8_t> bytes);

}  // namespace fuzz
