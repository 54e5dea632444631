#pragma once

#include "tarnix/platform/message_box.h"
#include "tarnix/platform/processor.h"
#include "tarnix/platform/screen.h"
#include "tarnix/platform/shell.h"
#include "tarnix/platform/top_windows.h"

#include <cstdint>
#include <functional>
#include <string>

/// The operations that a stand-in process may answer, as the system itself answers them. The add-in
/// calls them in `tarnix::platform` alone; `direct/` passes them on to these, and `hosted/` asks
/// the process first.
namespace tarnix::platform::native {

/// As `tarnix::platform::openWithShell`.
bool openWithShell(const std::string& target, ShellTarget kind);

/// As `tarnix::platform::sleep`.
void sleep(int milliseconds);

/// As `tarnix::platform::showMessageBox`.
void showMessageBox(const std::string& text, const std::string& title, MessageStyle style);

/// As `tarnix::platform::hideConsole`.
WindowHandle hideConsole();

/// As `tarnix::platform::virtualScreen`.
ScreenArea virtualScreen();

/// As `tarnix::platform::findWindow`.
WindowOnScreen findWindow(const std::string& title);

/// Whether `findWindow` takes two titles (UTF-8) for one.
bool isSameTitle(const std::string& title, const std::string& other);

/// As `tarnix::platform::processorInformation`.
ProcessorRegisters processorInformation(std::uint32_t leaf);

/// As `tarnix::platform::visitTopWindows`.
void visitTopWindows(const std::function<bool(const TopWindow&)>& visit);

}  // namespace tarnix::platform::native
