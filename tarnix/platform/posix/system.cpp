#include "tarnix/platform/native.h"

#include <unistd.h>

#if defined(__x86_64__) || defined(__i386__)
#include <cpuid.h>
#endif

#include <chrono>
#include <iostream>
#include <thread>

namespace tarnix::platform {
namespace native {

void sleep(int milliseconds) {
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// There is no message box that every system has: what no session takes over goes to the standard
// error output.
void showMessageBox(const std::string& text, const std::string& title, MessageStyle /*style*/) {
    std::cerr << title << ": " << text << "\n";
}

// A console window belongs to another program here.
WindowHandle hideConsole() { return 0; }

ProcessorRegisters processorInformation([[maybe_unused]] std::uint32_t leaf) {
    ProcessorRegisters registers = {};
#if defined(__x86_64__) || defined(__i386__)
    __cpuid(leaf, registers[0], registers[1], registers[2], registers[3]);
#endif
    return registers;
}

}  // namespace native

unsigned processorCount() {
    const long count = ::sysconf(_SC_NPROCESSORS_ONLN);
    return count > 0 ? static_cast<unsigned>(count) : 0;
}

std::uint64_t memorySize() {
    const long pages = ::sysconf(_SC_PHYS_PAGES);
    const long size = ::sysconf(_SC_PAGESIZE);
    return pages > 0 && size > 0 ? static_cast<std::uint64_t>(pages) * static_cast<unsigned>(size)
                                 : 0;
}

}  // namespace tarnix::platform
