#pragma once

#include "host/design/design_data.h"
#include "host/design/unmeasured.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace host {

/// What a design measures as a whole: its root component and everything below, each as often as
/// it is used.
struct DesignMeasures {
    double area = 0;         ///< cm2
    double volume = 0;       ///< cm3
    double mass = 0;         ///< kg
    std::optional<Box> box;  ///< along the axes, exact for every body; none without any
    std::size_t bodies = 0;
    std::vector<Unmeasured> unmeasured;  ///< components that count as nothing in the sums above
};

/// Measures a design that no document was made of. Each component is measured once.
DesignMeasures measureDesign(const DesignData& design);

}  // namespace host
