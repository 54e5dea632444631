#include "tarnix/helpdesk/screen_capture.h"

#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/platform/files.h"
#include "tarnix/platform/folders.h"
#include "tarnix/platform/message_box.h"
#include "tarnix/platform/sleep.h"

namespace tarnix {
namespace {

using platform::ScreenArea;
using platform::ScreenPicture;
using platform::WindowHandle;
using platform::WindowOnScreen;

/// `number` with three digits or more.
std::string threeDigits(int number) {
    const std::string digits = std::to_string(number);
    return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

void capture(int left, int top, int width, int height, WindowHandle window) {
    const ScreenPicture picture(left, top, width, height, window);
    if (!picture) {
        return;
    }
    ensureHelpdeskFolder();
    if (platform::directoryExists(helpdeskFolderPath())) {
        saveBitmapAsPng(picture, nextScreenFileName());
    }
}

}  // namespace

void captureWholeScreen() {
    const WindowHandle console = platform::hideConsole();
    constexpr int kUntilItIsGone = 250;  // milliseconds
    platform::sleep(kUntilItIsGone);
    const ScreenArea all = platform::virtualScreen();
    // The left edge is taken off the width and the top edge off the height, so that a monitor to
    // the left of the primary one, or above it, makes the picture larger than the desktop.
    const int width = all.right - all.left;
    const int height = all.bottom - all.top;
    capture(all.left, all.top, width - all.left, height - all.top, console);
}

void captureFusionWindow() {
    const WindowOnScreen window = platform::findWindow("Autodesk Fusion 360");
    const ScreenArea& inside = window.inside;
    // Asked for as in the other command, and of no use here.
    static_cast<void>(platform::virtualScreen());
    capture(inside.left, inside.top, inside.right - inside.left, inside.bottom - inside.top,
            window.handle);
}

std::string nextScreenFileName() {
    constexpr int kMost = 998;
    const std::string folder = helpdeskFolderPath();
    for (int number = 1; number <= kMost; ++number) {
        std::string path = folder + "screen_" + threeDigits(number) + ".png";
        if (!platform::canRead(path)) {
            return path;
        }
    }
    platform::showMessageBox("The allowed count of images in the directory has been exceeded",
                             "Error message", platform::MessageStyle::Error);
    return "";
}

void saveBitmapAsPng(const ScreenPicture& image, const std::string& path) { image.saveAsPng(path); }

}  // namespace tarnix
