#pragma once

#include "host/design/design_data.h"

#include <cstddef>
#include <cstdint>
#include <map>

/// The counts and masses of a parts list by the plainest walk there is: every occurrence is
/// visited, and nothing is remembered.
namespace test_support {

/// How often each component occurs.
struct WalkedCounts {
    std::map<std::size_t, std::int64_t> parts;       ///< that are not opened
    std::map<std::size_t, std::int64_t> assemblies;  ///< that are, without the root component
};

WalkedCounts countsByWalk(const host::DesignData& design);

/// In kg.
struct WalkedMasses {
    double all = 0;     ///< of the tree without Reference
    double listed = 0;  ///< the same without the own bodies of Divided components
};

WalkedMasses massesByWalk(const host::DesignData& design);

}  // namespace test_support
