#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

namespace tarnix::platform::native {

bool openWithShell(const std::string& target, ShellTarget kind) {
    const std::wstring text =
        kind == ShellTarget::File ? fromCodePage(target) : fromThreadCodePage(target);
    const wchar_t* const verb = kind == ShellTarget::Folder ? nullptr : L"open";
    const HINSTANCE result = ::ShellExecuteW(nullptr, verb, text.c_str(), /*lpParameters=*/nullptr,
                                             /*lpDirectory=*/nullptr, SW_SHOWNORMAL);
    // Not a handle, in spite of its type: values up to 32 are errors.
    return reinterpret_cast<std::intptr_t>(result) > 32;
}

}  // namespace tarnix::platform::native
