#include "host/base/base64.h"

#include <array>
#include <cstdint>

namespace host {
namespace {

constexpr std::string_view kLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// The value of each letter; -1 for other bytes.
constexpr std::array<std::int16_t, 256> kValues = [] {
    std::array<std::int16_t, 256> values = {};
    values.fill(-1);
    for (std::size_t at = 0; at < kLetters.size(); ++at) {
        values[static_cast<unsigned char>(kLetters[at])] = static_cast<std::int16_t>(at);
    }
    return values;
}();

}  // namespace

std::string toBase64(std::string_view bytes) {
    std::string text;
    text.reserve((bytes.size() + 2) / 3 * 4);
    for (std::size_t at = 0; at < bytes.size(); at += 3) {
        const std::string_view some = bytes.substr(at, 3);
        std::uint32_t bits = 0;
        for (std::size_t byte = 0; byte < 3; ++byte) {
            bits = bits << 8U | (byte < some.size() ? static_cast<unsigned char>(some[byte]) : 0U);
        }
        for (std::size_t letter = 0; letter < 4; ++letter) {
            text += letter <= some.size() ? kLetters[bits >> (18 - 6 * letter) & 63U] : '=';
        }
    }
    return text;
}

std::optional<std::string> fromBase64(std::string_view text) {
    if (text.size() % 4 != 0) {
        return std::nullopt;
    }
    const std::size_t padding = text.ends_with("==") ? 2 : text.ends_with('=') ? 1 : 0;
    text.remove_suffix(padding);
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    std::uint32_t bits = 0;
    unsigned count = 0;
    for (const char letter : text) {
        const int value = kValues[static_cast<unsigned char>(letter)];
        if (value < 0) {
            return std::nullopt;
        }
        bits = bits << 6U | static_cast<std::uint32_t>(value);
        count += 6;
        if (count >= 8) {
            count -= 8;
            bytes += static_cast<char>(bits >> count & 255U);
        }
    }
    return bytes;
}

}  // namespace host
