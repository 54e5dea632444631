#include "tarnix/platform/native.h"
#include "tarnix/platform/sleep.h"

namespace tarnix::platform {

void sleep(int milliseconds) { native::sleep(milliseconds); }

void showMessageBox(const std::string& text, const std::string& title, MessageStyle style) {
    native::showMessageBox(text, title, style);
}

WindowHandle hideConsole() { return native::hideConsole(); }

ScreenArea virtualScreen() { return native::virtualScreen(); }

WindowOnScreen findWindow(const std::string& title) { return native::findWindow(title); }

ProcessorRegisters processorInformation(std::uint32_t leaf) {
    return native::processorInformation(leaf);
}

}  // namespace tarnix::platform
