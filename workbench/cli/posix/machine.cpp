#include "workbench/cli/machine.h"

#include <unistd.h>

#include <algorithm>
#include <thread>

namespace workbench::machine {

std::size_t processors() { return std::max(std::thread::hardware_concurrency(), 1U); }

std::size_t memoryMegabytes() {
    constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long pageSize = ::sysconf(_SC_PAGESIZE);
    return pages > 0 && pageSize > 0
               ? static_cast<std::size_t>(pages) * static_cast<std::size_t>(pageSize) / kMegabyte
               : 0;
}

}  // namespace workbench::machine
