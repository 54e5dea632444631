#pragma once

/// What a process that loads a module may answer in place of the system.
///
/// A module built for a stand-in process looks these functions up by name, first in the program and
/// then in the host's library (`standinhost.dll`, or any library that the program is linked with).
/// Where there is none, and where a function returns `NotHandled`, the module asks the system. No
/// module links them. Strings end with a zero and, like the areas, are valid during the call only.
extern "C" {

/// The outcome of a request.
enum class StandInAnswer : int {
    NotHandled = 0,  ///< the module asks the system itself
    Done = 1,        ///< handled
    Failed = 2,      ///< handled: the module sees the failure that the system would report
};

/// What a module opens, which decides how Windows is asked.
enum class StandInTarget : int {
    File = 0,     ///< a string in the system's 8-bit code page, with the verb "open"
    Folder = 1,   ///< in the code page of the thread's language, without a verb
    Address = 2,  ///< in the code page of the thread's language, with the verb "open"
};

/// The module opens a file, a folder or a web address with the shell. `target` is the string that
/// the system's shell would receive, in the code page of its kind; paths have backslashes on every
/// system.
StandInAnswer standin_openWithShell(const char* target, StandInTarget kind);

/// The module sleeps. `Done`: it has waited for as long as the process chooses.
StandInAnswer standin_sleep(int milliseconds);

/// The module shows a message box with the one button OK and waits for it. `text` and `title` are
/// UTF-8; `style` is the system's number: 64 with the information icon, 16 with the error icon.
StandInAnswer standin_messageBox(const char* text, const char* title, unsigned style);

/// The module hides the console window of the process. `Done`: the process has no window that the
/// module could hide.
StandInAnswer standin_hideConsole();

/// A part of the screen, in pixels from the primary monitor's upper left corner; left of and above
/// that corner they are negative.
struct StandInArea {
    int left;    ///< the first column of it
    int top;     ///< the first row of it
    int right;   ///< the first column after it
    int bottom;  ///< the first row after it
};

/// The module asks for the area of all monitors together. `Done`: `area` is set.
StandInAnswer standin_virtualScreen(StandInArea* area);

/// Called for one window with its title, in UTF-8, and its client area; returns 0 to see no more.
using StandInWindowVisitor = int (*)(void* context, const char* title, const StandInArea* inside);

/// The module asks for the windows of the screen, the foremost first. `Done`: `visit` was called
/// for each.
StandInAnswer standin_visitWindows(StandInWindowVisitor visit, void* context);

/// The module asks for what the instruction CPUID returns for `leaf` in EAX, EBX, ECX and EDX.
/// `Done`: the four `registers` are set.
StandInAnswer standin_cpuid(unsigned leaf, unsigned* registers);
}
