#pragma once

#include <Core/Base.h>

namespace adsk::fusion {

/// How exactly the host is to measure.
enum CalculationAccuracy {
    LowCalculationAccuracy = 0,
    MediumCalculationAccuracy = 1,
    HighCalculationAccuracy = 2,
    VeryHighCalculationAccuracy = 3,
};

/// What a component measures with all that is in it, at the moment of asking.
class PhysicalProperties : public core::Base {
public:
    static const char* classType();

    /// Surface, in cm2.
    [[nodiscard]] virtual double area() const = 0;

    /// Mass by volume, in kg/cm3; 0 where there is no volume.
    [[nodiscard]] virtual double density() const = 0;

    /// Mass, in kg.
    [[nodiscard]] virtual double mass() const = 0;

    /// Volume, in cm3.
    [[nodiscard]] virtual double volume() const = 0;
};

}  // namespace adsk::fusion
