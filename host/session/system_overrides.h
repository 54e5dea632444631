#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

/// What a session answers a module in the place of the system, besides requests to the shell: time,
/// message boxes, the console, the screen, the processor.
namespace host {

/// A part of the screen, in pixels; right and bottom are outside of it.
struct ScreenRectangle {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

/// A window on the screen, and where its inside is.
struct WindowShown {
    std::string title;
    ScreenRectangle inside;
};

/// How a session answers. By default without waiting, and with what the machine has.
struct SystemOverrides {
    bool sleepTakesTime = false;  ///< else a module that wants to wait goes on at once
    bool consoleMayHide = false;  ///< a console that a module hides is shown again at the end

    /// The area of all monitors; without one the machine's.
    std::optional<ScreenRectangle> screen;

    /// All windows, the foremost first; without a list the machine's.
    std::optional<std::vector<WindowShown>> windows;

    /// EAX, EBX, ECX and EDX after CPUID of a leaf; null: the machine's.
    std::function<std::array<unsigned, 4>(unsigned leaf)> processor;
};

namespace system_overrides {

/// Answers this way until the host ends; a console that a module has hidden is shown then. Message
/// boxes are recorded among the messages of the host. Before the first call, and without a host,
/// everything is left to the system. Each function here throws a `MisuseError` without a host.
void set(SystemOverrides overrides);

/// The milliseconds that modules wanted to wait since the host started, one number for each wait.
const std::vector<int>& sleeps();

/// How often since the host started a module wanted the console hidden.
int consoleHidings();

}  // namespace system_overrides
}  // namespace host
