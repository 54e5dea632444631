#pragma once

#include <cstdint>
#include <memory>
#include <string>

/// The screen: where things are on it, and pictures of it.
///
/// Positions are pixels from the primary monitor's upper left corner.
namespace tarnix::platform {

/// A window of the system; 0 for none.
using WindowHandle = std::uintptr_t;

/// A part of the screen. Right and bottom are the first column and row that no longer belong to it.
struct ScreenArea {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool operator==(const ScreenArea&) const = default;
};

/// Hides the console window of the process, and returns it; 0 where there is none.
WindowHandle hideConsole();

/// The area of all monitors together.
ScreenArea virtualScreen();

/// A window, and where its inside is.
struct WindowOnScreen {
    WindowHandle handle = 0;
    ScreenArea inside;
};

/// The foremost window with exactly this title (UTF-8), large and small letters being the same.
/// Where there is none, 0 and an area of zeros.
WindowOnScreen findWindow(const std::string& title);

/// A picture of a part of the screen, without the mouse cursor. What lies beyond the monitors is
/// black.
class ScreenPicture {
public:
    /// Takes the picture. The system's handle of the screen is released in the name of `window`.
    ScreenPicture(int left, int top, int width, int height, WindowHandle window);
    ScreenPicture(const ScreenPicture&) = delete;
    ScreenPicture& operator=(const ScreenPicture&) = delete;
    ~ScreenPicture();

    /// False where no picture could be taken: without a screen, or of an area without a width or
    /// height, such as that of a window that is not there or has been reduced to an icon.
    explicit operator bool() const { return state_ != nullptr; }

    /// Writes the picture into a PNG file, replacing one that is there. The path is in the
    /// 8-bit code page of the thread's language. Failures are not reported.
    void saveAsPng(const std::string& path) const;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace tarnix::platform
