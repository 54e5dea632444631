#pragma once

#include "host/design/design_data.h"

namespace test_support {

/// A design of up to 14 components, nested as deeply as they can be, the same for a seed on every
/// system. Some assemblies have bodies of their own, all BOM structures occur at every level, part
/// numbers are repeated or empty, and places are absent.
host::DesignData randomDesign(unsigned seed);

/// The same design with its components, and the children of each, in another order.
host::DesignData shuffled(host::DesignData design, unsigned seed);

}  // namespace test_support
