#pragma once

#include <string>

namespace tarnix::platform {

/// What a string for the shell is, which decides how Windows is asked.
enum class ShellTarget {
    File,     ///< in the system's code page, with the verb "open"
    Folder,   ///< in the thread's code page, without a verb
    Address,  ///< in the thread's code page, with the verb "open"
};

/// Asks the shell to open a file or folder (a path in Windows terms) or a web address with the
/// program that the user has for it, as a double click would. Does not wait for that program's end,
/// and some seconds at most for the shell's answer.
///
/// The string is taken as it is: spaces, quotes and the like mean nothing in it. False when the
/// shell refuses in that time, as for an address that no program is for; callers with no use for
/// that drop it.
bool openWithShell(const std::string& target, ShellTarget kind = ShellTarget::File);

}  // namespace tarnix::platform
