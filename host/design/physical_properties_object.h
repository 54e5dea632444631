#pragma once

#include "host/base/object.h"
#include "host/design/measures.h"

#include <Fusion/PhysicalProperties.h>

namespace host {

/// What was measured when it was asked for.
class PhysicalPropertiesObject final : public Object<fusion::PhysicalProperties> {
public:
    explicit PhysicalPropertiesObject(const Measures& measures) : measures_(measures) {}

    [[nodiscard]] double area() const override { return get<"area">(measures_.area); }
    [[nodiscard]] double density() const override { return get<"density">(measures_.density()); }
    [[nodiscard]] double mass() const override { return get<"mass">(measures_.mass); }
    [[nodiscard]] double volume() const override { return get<"volume">(measures_.volume); }

private:
    Measures measures_;
};

}  // namespace host
