#include "host/design/geometry.h"

#include "host/design/transform.h"

namespace host {

FixedGeometry::FixedGeometry(double area, double volume, std::optional<Box> box, std::size_t bodies)
    : area_(area), volume_(volume), box_(box), bodies_(bodies) {}

double FixedGeometry::area() { return area_; }

double FixedGeometry::volume() { return volume_; }

std::size_t FixedGeometry::bodies() { return bodies_; }

std::optional<Box> FixedGeometry::box(const Transform& placement) {
    if (!box_) {
        return std::nullopt;
    }
    return placed(*box_, placement);
}

std::shared_ptr<Geometry> boxGeometry(double dx, double dy, double dz) {
    const double area = 2 * (dx * dy + dy * dz + dz * dx);
    return fixedGeometry(area, dx * dy * dz, Box{.min = {0, 0, 0}, .max = {dx, dy, dz}});
}

std::shared_ptr<Geometry> fixedGeometry(double area, double volume, std::optional<Box> box,
                                        std::size_t bodies) {
    return std::make_shared<FixedGeometry>(area, volume, box, bodies);
}

}  // namespace host
