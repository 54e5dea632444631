#include "tests/tarnix/helpdesk/pattern_window.h"

#include <windows.h>

#include <objidl.h>

#include <gdiplus.h>

namespace test_support {
namespace {

COLORREF colorOf(unsigned color) {
    return RGB((color >> 16) & 0xFF, (color >> 8) & 0xFF, color & 0xFF);
}

void fill(HDC context, unsigned color, const RECT& area) {
    const HBRUSH brush = ::CreateSolidBrush(colorOf(color));
    ::FillRect(context, &area, brush);
    ::DeleteObject(brush);
}

void paint(HWND window) {
    PAINTSTRUCT state = {};
    RECT inside = {};
    ::GetClientRect(window, &inside);
    const HDC context = ::BeginPaint(window, &state);
    const LONG middle = inside.right / 2;
    fill(context, PatternWindow::kLeft, {0, 0, middle, inside.bottom});
    fill(context, PatternWindow::kRight, {middle, 0, inside.right, inside.bottom});
    fill(context, PatternWindow::kCorner,
         {inside.right - PatternWindow::kCornerSize, inside.bottom - PatternWindow::kCornerSize,
          inside.right, inside.bottom});
    ::EndPaint(window, &state);
}

LRESULT CALLBACK answer(HWND window, UINT message, WPARAM word, LPARAM value) {
    switch (message) {
        case WM_PAINT:
            paint(window);
            return 0;
        case WM_ERASEBKGND:
            return 1;
        default:
            return ::DefWindowProcW(window, message, word, value);
    }
}

const wchar_t* windowClass() {
    static const wchar_t* const name = [] {
        WNDCLASSW wanted = {};
        wanted.lpfnWndProc = answer;
        wanted.lpszClassName = L"PatternWindow";
        ::RegisterClassW(&wanted);
        return wanted.lpszClassName;
    }();
    return name;
}

/// Lets the window take part in what goes on. What it paints reaches the screen only when the
/// thread is seen to be idle.
void pump() {
    constexpr DWORD kQuietMilliseconds = 200;
    MSG message = {};
    while (::MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT) ==
           WAIT_OBJECT_0) {
        while (::PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            ::DispatchMessageW(&message);
        }
    }
}

}  // namespace

struct PatternWindow::State {
    HWND window = nullptr;
};

PatternWindow::PatternWindow(const std::string& title, int left, int top, int width, int height)
    : state_(std::make_unique<State>()) {
    state_->window = ::CreateWindowExW(
        WS_EX_TOPMOST, windowClass(), std::wstring(title.begin(), title.end()).c_str(),
        WS_POPUP | WS_VISIBLE, left, top, width, height, nullptr, nullptr, nullptr, nullptr);
    pump();
}

PatternWindow::~PatternWindow() {
    ::DestroyWindow(state_->window);
    pump();
}

Picture readPng(const std::filesystem::path& file) {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    Picture picture;
    {
        Gdiplus::Bitmap bitmap(file.c_str());
        if (bitmap.GetLastStatus() == Gdiplus::Ok) {
            picture = blackPicture(static_cast<int>(bitmap.GetWidth()),
                                   static_cast<int>(bitmap.GetHeight()));
        }
        for (int i = 0; i < picture.width * picture.height; ++i) {
            Gdiplus::Color color;
            bitmap.GetPixel(i % picture.width, i / picture.width, &color);
            picture.pixels[static_cast<std::size_t>(i)] = color.GetValue() & 0xFFFFFF;
        }
    }
    Gdiplus::GdiplusShutdown(token);
    return picture;
}

}  // namespace test_support
