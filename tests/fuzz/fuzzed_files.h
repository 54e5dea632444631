#pragma once

#include <cstdint>
#include <span>
#include <string>

/// Runs of the readers over files that are made of bytes: each takes a small file that is in order
/// and changes it where the bytes say, so that it stays like one. A run returns what it found
/// wrong, empty for nothing; a file that is refused in words is in order, one whose reader crashed,
/// took too long or ended without a word is not, unless its error names entities that explain it.
namespace fuzz {

/// Parts of a design file replaced, left out or doubled. What can be read has to be as it was after
/// it is saved and read again.
std::string readDesignFile(std::span<const std::uint8_t> bytes);

/// Entities of a STEP file changed, left out or doubled; what can be read is measured too.
std::string readStep(std::span<const std::uint8_t> bytes);

/// The same for an IGES file.
std::string readIges(std::span<const std::uint8_t> bytes);

}  // namespace fuzz
