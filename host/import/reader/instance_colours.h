#pragma once

#include "host/import/reader/assembly.h"
#include "host/import/reader/colours.h"

#include "host/design/shape_data.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace step {

/// A use of a component: by the index of the component that it is in, and its index there.
struct UseIndex {
    std::size_t component = 0;
    std::size_t use = 0;
};

/// The colour that a file gives to an instance, whatever its part has.
struct InstanceColour {
    /// The uses that lead to it, each in the component of the one before; the first may be anywhere
    /// in the tree.
    std::vector<UseIndex> path;
    host::Rgba colour;
    std::optional<std::size_t> body;  ///< one of `InstanceColours::bodies`; none for all of it
};

struct InstanceColours {
    std::vector<InstanceColour> colours;
    BodyNumbers bodies;  ///< of parts that have several
};

/// The colours of instances of an assembly whose shapes are built, from styles that override in the
/// context of usages. Those of single faces of an instance are left out.
InstanceColours instanceColoursOf(const Assembly& assembly);

}  // namespace step
