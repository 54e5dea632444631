#pragma once

#include "host/base/object.h"
#include "host/design/measures.h"

#include <Fusion/PhysicalProperties.h>

namespace host {

/// What was measured when it was asked for.
class PhysicalPropertiesObject final : public Object<adsk::fusion::PhysicalProperties> {
public:
    explicit PhysicalPropertiesObject(const Measures& measures) : measures_(measures) {}

    [[nodiscard]] double area() const override {
        return refused<"PhysicalProperties::area">() ? 0 : measures_.area;
    }

    [[nodiscard]] double density() const override {
        return refused<"PhysicalProperties::density">() ? 0 : measures_.density();
    }

    [[nodiscard]] double mass() const override {
        return refused<"PhysicalProperties::mass">() ? 0 : measures_.mass;
    }

    [[nodiscard]] double volume() const override {
        return refused<"PhysicalProperties::volume">() ? 0 : measures_.volume;
    }

private:
    Measures measures_;
};

}  // namespace host
