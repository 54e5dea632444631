#include "tarnix/text/utf8.h"

#include <cstddef>
#include <cstdint>
#include <stdexcept>

namespace tarnix {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// The character at `index`, which moves past it.
char32_t takeCharacter(std::wstring_view text, std::size_t& index) {
    const auto unit = static_cast<char32_t>(text[index++]);
    if (isHighSurrogate(unit) && index < text.size()) {
        const auto next = static_cast<char32_t>(text[index]);
        if (isLowSurrogate(next)) {
            ++index;
            return 0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00);
        }
    }
    const bool isCharacter = unit <= 0x10FFFF && !isHighSurrogate(unit) && !isLowSurrogate(unit);
    return isCharacter ? unit : kReplacement;
}

void appendTail(std::string& out, char32_t character, int tailBytes) {
    for (int shift = 6 * (tailBytes - 1); shift >= 0; shift -= 6) {
        out += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    }
}

void append(std::string& out, char32_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0 | (character >> 6));
        appendTail(out, character, 1);
    } else if (character < 0x10000) {
        out += static_cast<char>(0xE0 | (character >> 12));
        appendTail(out, character, 2);
    } else {
        out += static_cast<char>(0xF0 | (character >> 18));
        appendTail(out, character, 3);
    }
}

/// How many bytes follow the first one of a character.
int tailBytesOf(unsigned char lead) {
    if (lead < 0x80) return 0;
    if (lead >= 0xC2 && lead < 0xE0) return 1;
    if (lead >= 0xE0 && lead < 0xF0) return 2;
    if (lead >= 0xF0 && lead < 0xF5) return 3;
    throw std::range_error("bad conversion");
}

/// The next six bits of a character, whose byte `index` moves past.
char32_t takeTail(std::string_view text, std::size_t& index) {
    if (index >= text.size() || (static_cast<unsigned char>(text[index]) & 0xC0) != 0x80) {
        throw std::range_error("bad conversion");
    }
    return static_cast<unsigned char>(text[index++]) & 0x3F;
}

/// The character whose UTF-8 begins at `index`, which moves past it.
char32_t takeUtf8(std::string_view text, std::size_t& index) {
    constexpr char32_t kSmallest[] = {0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[index++]);
    const int tailBytes = tailBytesOf(lead);
    char32_t character = tailBytes == 0 ? lead : lead & (0x3FU >> tailBytes);
    for (int i = 0; i < tailBytes; ++i) {
        character = (character << 6) | takeTail(text, index);
    }
    if (character < kSmallest[tailBytes] || character > 0x10FFFF || isHighSurrogate(character) ||
        isLowSurrogate(character)) {
        throw std::range_error("bad conversion");
    }
    return character;
}

}  // namespace

std::string toUtf8(std::wstring_view text) {
    std::string out;
    for (std::size_t index = 0; index < text.size();) {
        append(out, takeCharacter(text, index));
    }
    return out;
}

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string out;
    for (std::size_t index = 0; index < text.size();) {
        const char32_t character = takeUtf8(text, index);
        if (character < 0x10000) {
            out += static_cast<char16_t>(character);
        } else {
            out += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
            out += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
        }
    }
    return out;
}

}  // namespace tarnix
