#pragma once

#include "host/design/design_data.h"

#include <cstddef>
#include <optional>

namespace host {

/// What comes out when every assembly of a design is opened at each of its uses.
struct Expansion {
    std::size_t occurrences = 0;  ///< below the root component; stays at a number beyond all use
    std::size_t levels = 0;       ///< 0 without occurrences
    std::optional<std::size_t> cycle;  ///< a component that contains itself; the rest is then void
};

/// Counts without opening anything, for children that all are components of the design. Assemblies
/// that the root component does not lead to are only looked through for cycles.
Expansion expand(const DesignData& data);

}  // namespace host
