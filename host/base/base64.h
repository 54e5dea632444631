#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace host {

/// Bytes as base64, padded (RFC 4648).
std::string toBase64(std::string_view bytes);

/// The bytes; nothing for what is no base64.
std::optional<std::string> fromBase64(std::string_view text);

}  // namespace host
