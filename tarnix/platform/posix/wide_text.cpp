#include "tarnix/platform/posix/wide_text.h"

#include <cstddef>

namespace tarnix::platform {
namespace {

constexpr char16_t kBackslashOfAName = 0xF05C;
constexpr char16_t kBareByte = 0xDC00;

/// The bytes of a character that begins with `lead`; 0 where none does.
std::size_t sequenceLength(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

bool isTail(unsigned char byte) { return (byte & 0xC0) == 0x80; }

/// The character at `index` and its length; length 0 for a byte that is not text.
char32_t characterAt(const std::string& text, std::size_t index, std::size_t& length) {
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const auto lead = static_cast<unsigned char>(text[index]);
    const std::size_t needed = sequenceLength(lead);
    length = 0;
    if (needed == 0 || index + needed > text.size()) {
        return 0;
    }
    char32_t character = needed == 1 ? lead : lead & (0xFFU >> (needed + 1));
    for (std::size_t i = 1; i < needed; ++i) {
        const auto byte = static_cast<unsigned char>(text[index + i]);
        if (!isTail(byte)) {
            return 0;
        }
        character = (character << 6) | (byte & 0x3FU);
    }
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    if (character < smallest[needed] || character > 0x10FFFF || isSurrogate) {
        return 0;
    }
    length = needed;
    return character;
}

void appendWide(std::u16string& out, char32_t character) {
    if (character == U'\\') {
        out += kBackslashOfAName;
    } else if (character < 0x10000) {
        out += static_cast<char16_t>(character);
    } else {
        out += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
        out += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
}

bool isPair(const std::u16string& text, std::size_t index) {
    return index + 1 < text.size() && (text[index] & 0xFC00) == 0xD800 &&
           (text[index + 1] & 0xFC00) == 0xDC00;
}

void appendBytes(std::string& out, char32_t character) {
    const int tail = character < 0x80 ? 0 : character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    constexpr unsigned char leads[] = {0, 0xC0, 0xE0, 0xF0};
    out += static_cast<char>(leads[tail] | (character >> (6 * tail)));
    for (int shift = 6 * (tail - 1); shift >= 0; shift -= 6) {
        out += static_cast<char>(0x80 | ((character >> shift) & 0x3F));
    }
}

void appendUnit(std::string& out, char16_t unit) {
    if (unit == u'\\') {
        out += '/';
    } else if (unit == kBackslashOfAName) {
        out += '\\';
    } else if (unit >= kBareByte + 0x80 && unit <= kBareByte + 0xFF) {
        out += static_cast<char>(unit - kBareByte);
    } else {
        appendBytes(out, unit);
    }
}

}  // namespace

std::u16string wideName(const std::string& name) {
    std::u16string out;
    for (std::size_t i = 0; i < name.size();) {
        std::size_t length = 0;
        const char32_t character = characterAt(name, i, length);
        if (length == 0) {
            out += static_cast<char16_t>(kBareByte + static_cast<unsigned char>(name[i++]));
        } else {
            appendWide(out, character);
            i += length;
        }
    }
    return out;
}

std::string nativePath(const std::u16string& path) {
    std::string out;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (isPair(path, i)) {
            appendBytes(out, 0x10000 + ((path[i] - 0xD800U) << 10) + (path[i + 1] - 0xDC00U));
            ++i;
        } else {
            appendUnit(out, path[i]);
        }
    }
    return out;
}

}  // namespace tarnix::platform
