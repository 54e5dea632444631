#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a session answers a module in the place of the system, besides what the shell is asked:
/// time, message boxes, the console, the screen, the processor.
namespace host {

/// A part of the screen; right and bottom no longer belong to it.
struct ScreenRectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// A window on the screen, and where its inside stands.
struct WindowShown {
    std::string title;
    ScreenRectangle inside;
};

/// How a session answers. As it stands: without waiting, and with what the machine has.
struct SystemOverrides {
    bool sleepTakesTime = false;  ///< else a module that wants to wait goes on at once
    bool consoleMayHide = false;  ///< a console that a module hides is shown again at the end

    /// The area of all monitors; none: as the machine has it.
    std::optional<ScreenRectangle> screen;

    /// All windows that there are, the foremost first; none: as the machine has them.
    std::optional<std::vector<WindowShown>> windows;

    /// EAX, EBX, ECX and EDX after CPUID of a leaf; null: the machine's.
    std::function<std::array<unsigned, 4>(unsigned leaf)> processor;
};

namespace system_overrides {

/// Answers this way from now on. Message boxes are kept among the messages of the host.
void start(SystemOverrides answers);

/// Leaves everything to the system again, and shows a console that a module has hidden.
void end();

/// The milliseconds that modules wanted to wait since `start`, one number for each wait.
const std::vector<int>& sleeps();

/// How often since `start` a module wanted the console hidden.
int consoleHidings();

}  // namespace system_overrides
}  // namespace host
