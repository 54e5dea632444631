#pragma once

/// What a process that loads a module may answer in the place of the system.
///
/// A module that was built for a stand-in process looks these functions up by name, in the program
/// first and in the host's library (`standinhost.dll`, or any library that the program is linked
/// with) second. A process that has none, or whose function answers `NotHandled`, leaves the matter
/// to the system. No module links them.
extern "C" {

/// What became of a question.
enum class StandInAnswer : int {
    NotHandled = 0,  ///< the module asks the system itself
    Done = 1,        ///< dealt with
    Failed = 2,  ///< dealt with: the module is to see the failure that the system could have had
};

/// The module wants a file or a web address opened by the shell. `target` is the text that the
/// system's shell would get, in the system's 8-bit code page and ended by a zero; paths have
/// backslashes on every system. It is valid during the call only.
StandInAnswer standin_openWithShell(const char* target);

/// The module wants its thread to wait. `Done`: waited as long as the process wants it to.
StandInAnswer standin_sleep(int milliseconds);

/// The module shows a box with one button, OK, and waits for it. `text` and `title` are UTF-8 and
/// ended by a zero; `style` is the system's number: 64 with the icon of information, 16 with that
/// of an error.
StandInAnswer standin_messageBox(const char* text, const char* title, unsigned style);

/// The module wants the console window of the process hidden. `Done`: the process has no window
/// that the module could hide.
StandInAnswer standin_hideConsole();

/// A part of the screen, in pixels from the primary monitor's upper left corner. Right and bottom
/// are the first column and row that no longer belong to it.
struct StandInArea {
    int left;
    int top;
    int right;
    int bottom;
};

/// The module asks for the area of all monitors together. `Done`: `area` is set.
StandInAnswer standin_virtualScreen(StandInArea* area);

/// The module asks where the inside of the window with this title (UTF-8, ended by a zero) stands.
/// `Done`: `area` is set; `Failed`: there is no such window.
StandInAnswer standin_windowArea(const char* title, StandInArea* area);

/// Looks at one window: its title in UTF-8, ended by a zero, and where its inside stands, both
/// valid during the call only; 0 to see no more.
using StandInWindowVisitor = int (*)(void* context, const char* title, const StandInArea* inside);

/// The module asks for the windows of the screen, the foremost first. `Done`: `visit` has seen
/// them.
StandInAnswer standin_visitWindows(StandInWindowVisitor visit, void* context);

/// The module asks the processor about itself: what the instruction CPUID leaves in EAX, EBX, ECX
/// and EDX for `leaf`. `Done`: the four `registers` are set.
StandInAnswer standin_cpuid(unsigned leaf, unsigned* registers);
}
