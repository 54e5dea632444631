#pragma once

#include <string>
#include <string_view>

namespace parts {

/// Bytes as text, after RFC 4648 with padding.
std::string base64(std::string_view bytes);

}  // namespace parts
