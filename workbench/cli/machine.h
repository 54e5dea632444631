#pragma once

#include <cstddef>

/// What the machine has that this program runs on.
namespace workbench::machine {

/// At least 1.
std::size_t processors();

/// Memory in megabytes, used or not; 0 where the system does not say.
std::size_t memoryMegabytes();

}  // namespace workbench::machine
