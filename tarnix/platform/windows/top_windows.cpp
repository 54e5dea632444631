#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"

#include <windows.h>

#include <array>
#include <exception>

namespace tarnix::platform::native {
namespace {

/// The caller's visitor, and what it threw: no exception may cross the system's enumeration.
struct Visit {
    const std::function<bool(const TopWindow&)>& visitor;
    std::exception_ptr thrown;
};

std::string titleOf(HWND window) {
    std::array<wchar_t, 1024> buffer = {};
    const int length = ::GetWindowTextW(window, buffer.data(), static_cast<int>(buffer.size()));
    return toUtf8(std::wstring(buffer.data(), static_cast<std::size_t>(length)));
}

ScreenArea clientAreaOf(HWND window) {
    RECT area = {};
    // Zeros stay where the window is gone; the shift of an empty area means nothing either.
    if (::GetClientRect(window, &area) == FALSE) {
        return {};
    }
    constexpr UINT kCorners = 2;
    static_cast<void>(
        ::MapWindowPoints(window, HWND_DESKTOP, reinterpret_cast<POINT*>(&area), kCorners));
    return {.left = static_cast<int>(area.left),
            .top = static_cast<int>(area.top),
            .right = static_cast<int>(area.right),
            .bottom = static_cast<int>(area.bottom)};
}

BOOL CALLBACK visitOne(HWND window, LPARAM context) {
    auto& visit = *reinterpret_cast<Visit*>(context);
    try {
        const TopWindow shown = {.title = titleOf(window),
                                 .clientArea = [window] { return clientAreaOf(window); }};
        return visit.visitor(shown) ? TRUE : FALSE;
    } catch (...) {
        visit.thrown = std::current_exception();
        return FALSE;
    }
}

}  // namespace

void visitTopWindows(const std::function<bool(const TopWindow&)>& visitor) {
    Visit visit = {.visitor = visitor, .thrown = nullptr};
    // It fails where a visit ended it, and where there is no desktop: no windows then.
    static_cast<void>(::EnumWindows(&visitOne, reinterpret_cast<LPARAM>(&visit)));
    if (visit.thrown) {
        std::rethrow_exception(visit.thrown);
    }
}

}  // namespace tarnix::platform::native
