#pragma once

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

namespace tarnix {

/// The root component of the design that is open; null without an application, an active product,
/// or a product that is a design.
adsk::core::Ptr<adsk::fusion::Component> activeRootComponent();

/// The root component of `product`; null where it is no design.
adsk::core::Ptr<adsk::fusion::Component> rootComponentOf(
    const adsk::core::Ptr<adsk::core::Product>& product);

}  // namespace tarnix
