#pragma once

#include "host/design/design_data.h"

#include <memory>
#include <optional>

namespace host {

/// Declared measures: the geometry of designs that are made without a modeller.
///
/// When it is placed askew, its box is the one around the placed box.
class FixedGeometry final : public Geometry {
public:
    FixedGeometry(double area, double volume, std::optional<Box> box, std::size_t bodies = 1);

    double area() override;
    double volume() override;
    std::size_t bodies() override;
    std::optional<Box> box(const Transform& placement) override;

private:
    double area_;
    double volume_;
    std::optional<Box> box_;
    std::size_t bodies_;
};

/// A box between the origin and the corner (dx, dy, dz), in cm.
std::shared_ptr<Geometry> boxGeometry(double dx, double dy, double dz);

/// Measures as declared: cm2, cm3, and the box of the bodies as they are modelled, if there is any.
std::shared_ptr<Geometry> fixedGeometry(double area, double volume, std::optional<Box> box,
                                        std::size_t bodies = 1);

}  // namespace host
