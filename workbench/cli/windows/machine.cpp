#include "workbench/cli/machine.h"

#include <windows.h>

#include <algorithm>
#include <thread>

namespace workbench::machine {

std::size_t processors() { return std::max(std::thread::hardware_concurrency(), 1U); }

std::size_t memoryMegabytes() {
    constexpr DWORDLONG kMegabyte = DWORDLONG{1024} * 1024;
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof status;
    return ::GlobalMemoryStatusEx(&status) == 0
               ? 0
               : static_cast<std::size_t>(status.ullTotalPhys / kMegabyte);
}

}  // namespace workbench::machine
