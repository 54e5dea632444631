#pragma once

#include "host/design/design_data.h"

#include <cstdint>
#include <memory>
#include <optional>

namespace host {

class ComponentObject;

/// What a component measures with all that is in it.
struct Measures {
    double area = 0;    ///< cm2
    double volume = 0;  ///< cm3
    double mass = 0;    ///< kg

    /// kg/cm3, 0 where there is no volume.
    [[nodiscard]] double density() const { return volume > 0 ? mass / volume : 0; }
};

/// What was worked out of a component, and how current it is.
struct MeasureCache {
    std::optional<Measures> own;  ///< its own bodies; the mass is left out
    std::optional<Measures> total;
    std::uint64_t totalEdits = 0;  ///< the count of `Edits::materials` that `total` fits

    /// What few designs are asked for.
    struct Boxes {
        std::optional<Box> own;  ///< its own bodies as they are modelled
        std::optional<std::uint64_t>
            allEdits;  ///< the count of `Edits::placements` that `all` fits
        std::optional<Box> all;
    };
    std::unique_ptr<Boxes> boxes;

    bool failed = false;  ///< its own bodies could not be measured
};

/// Measures a component: its bodies, and everything in it, each as often as it is used
/// there. Every component is measured once, until a material changes. Bodies that cannot be
/// measured count as none; they are reported by the host's last error and in
/// `Model::unmeasured`.
Measures measure(ComponentObject& component);

/// The box around a component along its axes, exact for every body in it; none without any body.
///
/// Worked out once, until something is placed again.
std::optional<Box> boxOf(ComponentObject& component);

}  // namespace host
