#pragma once

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <ostream>

namespace parts {

/// Writes a design as binary glTF 2.0 without extensions, for viewers and for the offline page
/// (docs/page.md says what that reads).
///
/// Every occurrence is a node with its name and with its path, component and part number as extras;
/// every shape that has a mesh is one mesh, which its occurrences share, with its feature edges as
/// lines. Metres, Y up, as glTF wants it. Throws a `std::runtime_error` for a model of 4 GB or
/// more.
void writeGlb(const host::DesignData& design, const host::ShapeData& shapes, std::ostream& stream);

}  // namespace parts
