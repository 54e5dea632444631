#pragma once

#include <string>
#include <string_view>

namespace tarnix::platform {

/// UTF-16 in the type that the calls of Windows take.
inline std::wstring toWide(std::u16string_view text) { return {text.begin(), text.end()}; }

/// UTF-16 in the type that is the same on every system.
inline std::u16string fromWide(std::wstring_view text) { return {text.begin(), text.end()}; }

}  // namespace tarnix::platform
