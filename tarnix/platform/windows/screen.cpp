#include "tarnix/platform/screen.h"

#include "tarnix/platform/native.h"
#include "tarnix/platform/windows/code_page.h"
#include "tarnix/platform/windows/png_image.h"

#include <windows.h>

namespace tarnix::platform {
namespace native {

ScreenArea virtualScreen() {
    const int left = ::GetSystemMetrics(SM_XVIRTUALSCREEN);
    const int top = ::GetSystemMetrics(SM_YVIRTUALSCREEN);
    return {.left = left,
            .top = top,
            .right = left + ::GetSystemMetrics(SM_CXVIRTUALSCREEN),
            .bottom = top + ::GetSystemMetrics(SM_CYVIRTUALSCREEN)};
}

WindowOnScreen findWindow(const std::string& title) {
    const HWND window = ::FindWindowW(/*lpClassName=*/nullptr, fromUtf8(title).c_str());
    RECT inside = {};
    // Without a window both fail, and the zeros stay.
    static_cast<void>(::GetClientRect(window, &inside));
    static_cast<void>(
        ::MapWindowPoints(window, /*hWndTo=*/nullptr, reinterpret_cast<POINT*>(&inside), 2));
    return {.handle = reinterpret_cast<WindowHandle>(window),
            .inside = {.left = static_cast<int>(inside.left),
                       .top = static_cast<int>(inside.top),
                       .right = static_cast<int>(inside.right),
                       .bottom = static_cast<int>(inside.bottom)}};
}

bool isSameTitle(const std::string& title, const std::string& other) {
    constexpr int kWhole = -1;
    return ::CompareStringOrdinal(fromUtf8(title).c_str(), kWhole, fromUtf8(other).c_str(), kWhole,
                                  /*bIgnoreCase=*/TRUE) == CSTR_EQUAL;
}

}  // namespace native

struct ScreenPicture::State {
    HDC screen = nullptr;
    HDC memory = nullptr;
    HBITMAP bitmap = nullptr;
    HWND window = nullptr;
    PngImage image;
};

namespace {

/// For an area without a width or height the system has a bitmap of its own, of one pixel, which is
/// not a picture.
HBITMAP newBitmap(HDC screen, int width, int height) {
    return width != 0 && height != 0 ? ::CreateCompatibleBitmap(screen, width, height) : nullptr;
}

}  // namespace

ScreenPicture::ScreenPicture(int left, int top, int width, int height, WindowHandle window) {
    const HDC screen = ::GetDC(nullptr);
    const HDC memory = ::CreateCompatibleDC(screen);
    const HBITMAP bitmap = newBitmap(screen, width, height);
    ::SelectObject(memory, bitmap);
    // What could not be copied is black in the picture.
    static_cast<void>(::BitBlt(memory, 0, 0, width, height, screen, left, top, SRCCOPY));
    if (bitmap == nullptr) {
        // The two contexts stay open then, as they always have.
        return;
    }
    state_ = std::make_unique<State>();
    state_->screen = screen;
    state_->memory = memory;
    state_->bitmap = bitmap;
    state_->window = reinterpret_cast<HWND>(window);
    state_->image.attach(bitmap);
}

ScreenPicture::~ScreenPicture() {
    if (state_ != nullptr) {
        ::DeleteObject(state_->bitmap);
        ::DeleteObject(state_->memory);
        ::ReleaseDC(state_->window, state_->screen);
    }
}

void ScreenPicture::saveAsPng(const std::string& path) const {
    state_->image.save(fromThreadCodePage(path));
}

}  // namespace tarnix::platform
