#pragma once

#include "host/design/design_data.h"

#include <cstddef>

namespace bench {

/// How the occurrences of a measured design hang together.
enum class Shape {
    FlatDifferent,  ///< all directly under the root, each a component of its own
    FlatShared,     ///< all directly under the root, of 100 components
    Nested,         ///< assemblies of one kind, with 50 different parts below each
    UnderOne,       ///< the same, all below one assembly that is alone under the root
};

/// A design of `count` occurrences in all, with 3 attributes on each component.
host::DesignData makeDesign(Shape shape, std::size_t count);

}  // namespace bench
