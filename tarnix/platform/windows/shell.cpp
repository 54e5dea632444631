#include "tarnix/platform/windows/shell_request.h"

#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

namespace tarnix::platform {

ShellRequest shellRequest(const std::string& target, ShellTarget kind) {
    return {.verb = kind == ShellTarget::Folder ? nullptr : L"open",
            .text = kind == ShellTarget::File ? fromCodePage(target) : fromThreadCodePage(target)};
}

bool native::openWithShell(const std::string& target, ShellTarget kind) {
    const ShellRequest request = shellRequest(target, kind);
    const HINSTANCE result =
        ::ShellExecuteW(nullptr, request.verb, request.text.c_str(), /*lpParameters=*/nullptr,
                        /*lpDirectory=*/nullptr, SW_SHOWNORMAL);
    // Not a handle, in spite of its type: values up to 32 are errors.
    return reinterpret_cast<std::intptr_t>(result) > 32;
}

}  // namespace tarnix::platform
