#pragma once

#include "host/design/shape_data.h"

#include <string_view>

namespace parts {

/// The colour of what has none in its file: that of its material, where a word in the name is one
/// of those that docs/shapes.md lists; else one of a few calm colours, always the same for a name.
/// An empty name, for a material that is not stated, is grey.
host::Rgba colourOfMaterial(std::string_view name);

}  // namespace parts
