#pragma once

#include <string>

namespace tarnix::platform {

/// A name of this system as Windows would have it in UTF-16, without separators: bytes that
/// are not UTF-8 become lone low surrogates (0xDC00 and the byte), and a backslash,
/// which separates nothing here, becomes U+F05C.
std::u16string wideName(const std::string& name);

/// A path in Windows terms as this system spells it: the way back, and "/" for each backslash.
std::string nativePath(const std::u16string& path);

}  // namespace tarnix::platform
