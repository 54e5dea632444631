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

struct PatternWindow::State {
    HWND window = nullptr;
};

PatternWindow::PatternWindow(const std::string& title, int left, int top, int width, int height)
    : state_(std::make_unique<State>()) {
    state_->window = ::CreateWindowExW(
        WS_EX_TOPMOST, L"Static", std::wstring(title.begin(), title.end()).c_str(),
        WS_POPUP | WS_VISIBLE, left, top, width, height, nullptr, nullptr, nullptr, nullptr);
    pump();
    const HDC context = ::GetDC(state_->window);
    fill(context, kLeft, {0, 0, width / 2, height});
    fill(context, kRight, {width / 2, 0, width, height});
    fill(context, kCorner, {width - 10, height - 10, width, height});
    ::ReleaseDC(state_->window, context);
    ::GdiFlush();
}

PatternWindow::~PatternWindow() {
    ::DestroyWindow(state_->window);
    pump();
}

PngPixels::PngPixels(const std::filesystem::path& file) {
    ULONG_PTR token = 0;
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token, &input, nullptr);
    {
        Gdiplus::Bitmap bitmap(file.c_str());
        if (bitmap.GetLastStatus() == Gdiplus::Ok) {
            width = static_cast<int>(bitmap.GetWidth());
            height = static_cast<int>(bitmap.GetHeight());
            for (int i = 0; i < width * height; ++i) {
                Gdiplus::Color color;
                bitmap.GetPixel(i % width, i / width, &color);
                pixels.push_back(color.GetValue() & 0xFFFFFF);
            }
        }
    }
    Gdiplus::GdiplusShutdown(token);
}

}  // namespace test_support
