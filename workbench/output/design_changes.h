#pragma once

#include "host/design/design_data.h"

#include <string>
#include <vector>

namespace workbench {

/// What differs between two states of one design, a line each, in the order of its components:
/// names, part numbers, descriptions, materials, attributes, placements, grounding and sketches,
/// and what was added. Components are compared by their places in the lists; an empty list where
/// nothing differs. Shapes are not compared.
std::vector<std::string> changesBetween(const host::DesignData& before,
                                        const host::DesignData& after);

}  // namespace workbench
