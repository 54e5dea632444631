#include "tarnix/platform/module_path.h"

#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <array>

namespace tarnix::platform {
namespace {

/// The module that holds this very code.
HMODULE ownModule() {
    constexpr DWORD flags =
        GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
    HMODULE module = nullptr;
    const auto address = reinterpret_cast<LPCWSTR>(&ownModule);
    return ::GetModuleHandleExW(flags, address, &module) != FALSE ? module : nullptr;
}

}  // namespace

std::string modulePath() {
    std::array<wchar_t, 260> path = {};
    // A path that is cut off is one that ends at the limit; the length says no more than the zero.
    static_cast<void>(
        ::GetModuleFileNameW(ownModule(), path.data(), static_cast<DWORD>(path.size())));
    path.back() = L'\0';
    return toCodePage(path.data());
}

}  // namespace tarnix::platform
