#pragma once

#include <string>

/// The encoder of UTF-8. It is a header alone, so that the reader program has it without the host.
namespace host {

/// Appends a code point, which has to be at most 0x10FFFF.
inline void appendUtf8(std::string& out, char32_t point) {
    const auto byte = [&out](char32_t bits) { out += static_cast<char>(bits); };
    const auto following = [&](unsigned shift) { byte(0x80 | ((point >> shift) & 0x3F)); };
    if (point < 0x80) {
        byte(point);
    } else if (point < 0x800) {
        byte(0xC0 | (point >> 6));
        following(0);
    } else if (point < 0x10000) {
        byte(0xE0 | (point >> 12));
        following(6);
        following(0);
    } else {
        byte(0xF0 | (point >> 18));
        following(12);
        following(6);
        following(0);
    }
}

}  // namespace host
