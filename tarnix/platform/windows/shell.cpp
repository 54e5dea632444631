#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

namespace tarnix::platform::native {

bool openWithShell(const std::string& target) {
    const HINSTANCE result =
        ::ShellExecuteW(nullptr, L"open", fromCodePage(target).c_str(), /*lpParameters=*/nullptr,
                        /*lpDirectory=*/nullptr, SW_SHOWNORMAL);
    // No handle, in spite of its type: values up to 32 are errors.
    return reinterpret_cast<std::intptr_t>(result) > 32;
}

}  // namespace tarnix::platform::native
