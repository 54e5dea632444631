#pragma once

#include <string>

namespace tarnix::platform {

/// A name in the capitals in which Windows compares names: each unit of UTF-16 by itself, and a
/// letter alone whose capital has it as its small letter. So the letters "\u00B5", "\u0131" and
/// "\u017F" stay, and letters beyond 16 bits do. Where the system has no locale "C.UTF-8", only the
/// letters of ASCII are changed.
///
/// The locale of the process has no part in it.
std::u16string inCapitals(std::u16string name);

}  // namespace tarnix::platform
