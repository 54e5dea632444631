#pragma once

#include "host/design/design_data.h"

#include <cstdint>

namespace workbench::serve {

/// A number that changes when the model of a design would: its components' names, materials and
/// bodies, and where they are placed. Attributes, part numbers and grounding have no part in it.
std::uint64_t digestOf(const host::DesignData& design);

}  // namespace workbench::serve
