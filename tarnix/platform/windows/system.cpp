#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#ifdef _MSC_VER
#include <intrin.h>
#else
#include <cpuid.h>
#endif

namespace tarnix::platform {
namespace native {

void sleep(int milliseconds) { ::Sleep(static_cast<DWORD>(milliseconds)); }

void showMessageBox(const std::string& text, const std::string& title, MessageStyle style) {
    // There is one button only.
    static_cast<void>(::MessageBoxW(nullptr, fromUtf8(text).c_str(), fromUtf8(title).c_str(),
                                    static_cast<UINT>(style)));
}

WindowHandle hideConsole() {
    const HWND console = ::GetConsoleWindow();
    // Returns whether the window showed before; without one nothing happens.
    static_cast<void>(::ShowWindow(console, SW_HIDE));
    return reinterpret_cast<WindowHandle>(console);
}

ProcessorRegisters processorInformation(std::uint32_t leaf) {
    ProcessorRegisters registers = {};
#ifdef _MSC_VER
    int values[4] = {};
    ::__cpuid(values, static_cast<int>(leaf));
    for (int i = 0; i < 4; ++i) {
        registers[i] = static_cast<std::uint32_t>(values[i]);
    }
#else
    __cpuid(leaf, registers[0], registers[1], registers[2], registers[3]);
#endif
    return registers;
}

}  // namespace native

unsigned processorCount() {
    SYSTEM_INFO information = {};
    ::GetSystemInfo(&information);
    return information.dwNumberOfProcessors;
}

std::uint64_t memorySize() {
    MEMORYSTATUSEX status = {};
    status.dwLength = sizeof(status);
    // What fails leaves the zero.
    static_cast<void>(::GlobalMemoryStatusEx(&status));
    return status.ullTotalPhys;
}

}  // namespace tarnix::platform
