#include "tests/tarnix/commands/framed_window.h"

#include <windows.h>

namespace test_support {
namespace {

constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_VISIBLE;

/// The window around this inside.
RECT outsideOf(int left, int top, int width, int height) {
    RECT area = {left, top, left + width, top + height};
    ::AdjustWindowRect(&area, kStyle, /*bMenu=*/FALSE);
    return area;
}

/// Lets the window take part in what goes on.
void pump() {
    MSG message = {};
    for (int i = 0; i < 20; ++i) {
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            ::TranslateMessage(&message);
            ::DispatchMessageW(&message);
        }
        ::Sleep(10);
    }
}

}  // namespace

struct FramedWindow::State {
    HWND window = nullptr;
};

FramedWindow::FramedWindow(const std::string& title, int left, int top, int width, int height)
    : state_(std::make_unique<State>()) {
    const RECT area = outsideOf(left, top, width, height);
    state_->window = ::CreateWindowExW(
        0, L"Static", std::wstring(title.begin(), title.end()).c_str(), kStyle, area.left, area.top,
        area.right - area.left, area.bottom - area.top, nullptr, nullptr, nullptr, nullptr);
    pump();
}

FramedWindow::~FramedWindow() {
    ::DestroyWindow(state_->window);
    pump();
}

void FramedWindow::move(int left, int top, int width, int height) const {
    const RECT area = outsideOf(left, top, width, height);
    ::MoveWindow(state_->window, area.left, area.top, area.right - area.left,
                 area.bottom - area.top, /*bRepaint=*/TRUE);
    pump();
}

}  // namespace test_support
