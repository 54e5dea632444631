#pragma once

#include <string>
#include <string_view>

namespace tarnix::platform {

/// A string as an XML document can hold it: without the control characters that XML forbids, which
/// no escaping could bring in and which would make the file unreadable, and with U+FFFD for bytes
/// that are not UTF-8.
std::string xmlText(std::string_view utf8);

}  // namespace tarnix::platform
