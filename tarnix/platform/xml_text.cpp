#include "tarnix/platform/xml_text.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace tarnix::platform {
namespace {

/// A character and the bytes it takes; one byte and no character where they are not UTF-8.
struct Decoded {
    std::size_t size = 1;
    bool valid = false;
    char32_t character = 0;
};

/// The number of bytes that a first byte announces, 0 if it is none.
std::size_t announcedSize(unsigned char first) {
    if (first < 0x80) return 1;
    if (first >= 0xC2 && first <= 0xDF) return 2;
    if (first >= 0xE0 && first <= 0xEF) return 3;
    if (first >= 0xF0 && first <= 0xF4) return 4;
    return 0;
}

Decoded decode(std::string_view text) {
    constexpr std::array<char32_t, 5> smallest = {0, 0, 0x80, 0x800, 0x10000};
    const auto first = static_cast<unsigned char>(text.front());
    const std::size_t size = announcedSize(first);
    if (size == 0 || size > text.size()) {
        return {};
    }
    char32_t character = size == 1 ? first : first & (0x7Fu >> size);
    for (std::size_t i = 1; i < size; ++i) {
        const auto next = static_cast<unsigned char>(text[i]);
        if ((next & 0xC0) != 0x80) {
            return {};
        }
        character = (character << 6) | (next & 0x3Fu);
    }
    const bool surrogate = character >= 0xD800 && character <= 0xDFFF;
    if (character < smallest[size] || character > 0x10FFFF || surrogate) {
        return {};
    }
    return {.size = size, .valid = true, .character = character};
}

bool isAllowed(char32_t character) {
    if (character < 0x20) {
        return character == '\t' || character == '\n' || character == '\r';
    }
    return character != 0xFFFE && character != 0xFFFF;
}

}  // namespace

std::string xmlText(std::string_view utf8) {
    std::string text;
    text.reserve(utf8.size());
    while (!utf8.empty()) {
        const Decoded decoded = decode(utf8);
        if (!decoded.valid) {
            text += "\xEF\xBF\xBD";
        } else if (isAllowed(decoded.character)) {
            text += utf8.substr(0, decoded.size);
        }
        utf8.remove_prefix(decoded.size);
    }
    return text;
}

}  // namespace tarnix::platform
