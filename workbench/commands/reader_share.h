#pragma once

#include "host/design/reading_limits.h"

#include <cstddef>

namespace workbench {

/// What several readers have together.
struct ReaderPool {
    std::size_t readers = 1;  ///< at once
    std::size_t processors = 1;
    std::size_t memoryMegabytes = 0;  ///< of the machine; 0 where it is unknown
};

/// The limits of one of several readers that work at once: the processors are shared, and together
/// they get no more memory than the machine has. A lone reader keeps its limits.
host::ReadingLimits shareOf(const host::ReadingLimits& limits, const ReaderPool& pool);

}  // namespace workbench
