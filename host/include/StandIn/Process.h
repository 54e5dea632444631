#pragma once

/// What a process that loads a module may answer in the place of the system.
///
/// A module that was built for a stand-in process looks these functions up by name, in the program
/// first and in the host's library (`standinhost.dll`, or any library that the program is linked
/// with) second. A process that has none, or whose function answers `NotMine`, leaves the matter to
/// the system. No module links them.
extern "C" {

/// What became of a question.
enum class StandInAnswer : int {
    NotMine = 0,  ///< the module asks the system itself
    Done = 1,     ///< dealt with
    Failed = 2,   ///< dealt with: the module is to see the failure that the system could have had
};

/// The module wants a file or a web address opened by the shell. `target` is the text that the
/// system's shell would get, in the system's 8-bit code page and ended by a zero; paths have
/// backslashes on every system. It is valid during the call only.
StandInAnswer standin_openWithShell(const char* target);
}
