#pragma once

#include "host/design/history.h"

#include <cstdint>

namespace host {

/// Counts the changes of a document: a result that was computed from it, or saved, is current while
/// the count is the same. Whatever is changed is first noted in its history.
struct Edits {
    std::uint64_t all = 0;         ///< every change
    std::uint64_t materials = 0;   ///< changes that masses depend on
    std::uint64_t placements = 0;  ///< changes that boxes depend on
    History history;
};

}  // namespace host
