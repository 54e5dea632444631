#include "tarnix/text/utf8.h"

#include <cstddef>
#include <cstdint>

namespace tarnix {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

/// The character at `index`, which moves behind it.
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

}  // namespace

std::string toUtf8(std::wstring_view text) {
    std::string out;
    for (std::size_t index = 0; index < text.size();) {
        append(out, takeCharacter(text, index));
    }
    return out;
}

}  // namespace tarnix
