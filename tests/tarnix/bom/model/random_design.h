#pragma once

#include "host/design/design_data.h"

#include <random>

/// A small design made of what makes items hard to tell apart: names that hold "empty", "+" and ":"
/// or begin like each other, few part numbers, a component under several parents, properties that
/// differ, and places without an occurrence. The same generator state makes the same design
/// everywhere.
host::DesignData randomDesign(std::mt19937& random);
