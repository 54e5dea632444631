#pragma once

#include <string>

namespace tarnix::platform {

/// Asks the shell to open a file (a path in Windows terms) or a web address with the program that
/// the user has for it, as a double click would. Does not wait for that program.
///
/// The text is taken as it stands: blanks, quotes and the like mean nothing in it. False when the
/// shell refuses at once; callers with no use for that drop it.
bool openWithShell(const std::string& target);

}  // namespace tarnix::platform
