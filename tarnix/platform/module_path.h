#pragma once

#include <string>

namespace tarnix::platform {

/// The path of the module this is linked into, which is not the program that loaded it.
///
/// The path is in Windows terms on every system: backslashes between folders, in the system's 8-bit
/// code page. A character that the code page lacks comes out as a space. The system is asked for
/// 260 wide characters, the terminating zero included, and a longer path is cut off there.
std::string modulePath();

}  // namespace tarnix::platform
