#pragma once

#include <cstdint>

namespace host {

/// Counts what was changed in a document, so that results that were worked out from it, and a
/// person's unsaved work, can be told apart from what is current.
struct Edits {
    std::uint64_t all = 0;         ///< every change
    std::uint64_t materials = 0;   ///< changes that masses depend on
    std::uint64_t placements = 0;  ///< changes that boxes depend on
};

}  // namespace host
