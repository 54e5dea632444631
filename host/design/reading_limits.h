#pragma once

#include <cstddef>

namespace host {

/// How deep assemblies may be nested in each other.
inline constexpr std::size_t kMaximumLevels = 500;

/// What reading a file may take before it is given up.
struct ReadingLimits {
    double seconds = 300;  ///< for reading; again for each measurement

    /// Memory of the reading program; of a design file, what its text can take at the most.
    std::size_t megabytes = 3072;

    std::size_t threads = 0;  ///< that measure shapes; 0: one for each processor

    std::size_t occurrences = 200'000;  ///< below the root, those in context one by one
    std::size_t levels = kMaximumLevels;
};

}  // namespace host
