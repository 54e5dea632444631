#pragma once

#include <Core/Base.h>

namespace adsk::fusion {

/// How exactly the host is to measure. This host measures exactly in any case.
enum CalculationAccuracy {
    LowCalculationAccuracy = 0,
    MediumCalculationAccuracy = 1,
    HighCalculationAccuracy = 2,
    VeryHighCalculationAccuracy = 3,
};

/// The measures of a component with everything in it, at the time of the call. They do not follow
/// later changes. All are 0 for a component without bodies.
class PhysicalProperties : public core::Base {
public:
    static const char* classType();  ///< "adsk::fusion::PhysicalProperties"

    /// The area of the surface, in cm2.
    [[nodiscard]] virtual double area() const = 0;

    /// The mass divided by the volume, in kg/cm3; 0 without a volume.
    [[nodiscard]] virtual double density() const = 0;

    /// The mass, in kg; 0 without a material.
    [[nodiscard]] virtual double mass() const = 0;

    /// The volume, in cm3.
    [[nodiscard]] virtual double volume() const = 0;
};

}  // namespace adsk::fusion
