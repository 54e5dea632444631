#pragma once

#include "parts/glb_meshes.h"
#include "parts/glb_streams.h"

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <ostream>

namespace parts {

/// What a node says of its occurrence.
enum class GlbExtras {
    All,        ///< path, component and part number
    PathAlone,  ///< for the offline page, which has the rest in its lists
};

struct GlbOptions {
    /// Models that are smaller plain than compressed are plain, and all those of a build that
    /// cannot compress (`canPack` in glb_packing.h).
    GlbPacking packing = GlbPacking::Compressed;
    GlbExtras extras = GlbExtras::All;
};

/// Writes a design as binary glTF 2.0, for viewers and for the offline page (docs/page.md says what
/// that reads). Plain, it needs no extension; compressed, it needs KHR_mesh_quantization and
/// EXT_meshopt_compression.
///
/// Every occurrence in which something can be drawn is a node with its name, its placement, and
/// extras (boards come with hundreds of empty ones); every shape that has a mesh
/// is one mesh, which its occurrences share, with its feature edges as lines. It is one more mesh,
/// of the same numbers, for an instance that has another colour. Metres, Y up, as glTF wants it.
/// Returns what the model has. Throws a `std::runtime_error` for a model of 4 GB or more.
GlbCounts writeGlb(const host::DesignData& design, const host::ShapeData& shapes,
                   const GlbOptions& options, std::ostream& stream);

}  // namespace parts
