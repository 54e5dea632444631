#include "workbench/output/display_text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

namespace workbench {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
constexpr char32_t kNone = 0xFFFFFFFF;

struct Range {
    char32_t first;
    char32_t last;
};

// Characters that take no column of their own: combining marks, joiners, direction marks, variation
// selectors.
constexpr std::array kNoWidth = {
    Range{0x0300, 0x036F},   Range{0x0483, 0x0489}, Range{0x0591, 0x05BD}, Range{0x0610, 0x061A},
    Range{0x064B, 0x065F},   Range{0x06D6, 0x06DC}, Range{0x0E31, 0x0E31}, Range{0x0E34, 0x0E3A},
    Range{0x0E47, 0x0E4E},   Range{0x1160, 0x11FF}, Range{0x1AB0, 0x1AFF}, Range{0x1DC0, 0x1DFF},
    Range{0x200B, 0x200F},   Range{0x202A, 0x202E}, Range{0x2060, 0x2064}, Range{0x20D0, 0x20F0},
    Range{0x3099, 0x309A},   Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}, Range{0xFEFF, 0xFEFF},
    Range{0xE0100, 0xE01EF},
};

// Characters that take two columns: East Asian scripts, their full-width forms, and pictures.
constexpr std::array kWide = {
    Range{0x1100, 0x115F},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},
    Range{0x3400, 0x4DBF},   Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},
    Range{0xA960, 0xA97F},   Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},
    Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},   Range{0xFFE0, 0xFFE6},
    Range{0x1F300, 0x1F64F}, Range{0x1F680, 0x1F6FF}, Range{0x1F900, 0x1F9FF},
    Range{0x20000, 0x2FFFD}, Range{0x30000, 0x3FFFD},
};

template <std::size_t N>
bool contains(const std::array<Range, N>& ranges, char32_t character) {
    const auto found =
        std::lower_bound(ranges.begin(), ranges.end(), character,
                         [](const Range& range, char32_t value) { return range.last < value; });
    return found != ranges.end() && found->first <= character;
}

struct Decoded {
    char32_t character;  ///< `kNone` for bytes that are not UTF-8
    std::size_t length;
};

/// How many bytes a character with this first byte has; 0 for a byte that cannot be the first.
std::size_t lengthByLead(unsigned char lead) {
    if (lead < 0x80) return 1;
    if (lead >= 0xC2 && lead < 0xE0) return 2;
    if (lead >= 0xE0 && lead < 0xF0) return 3;
    return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

/// The first character of a string that is not empty.
Decoded decode(std::string_view text) {
    const auto lead = static_cast<unsigned char>(text[0]);
    const std::size_t length = lengthByLead(lead);
    if (length == 0 || length > text.size()) {
        return {kNone, 1};
    }
    char32_t character = length == 1 ? lead : lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if ((byte & 0xC0U) != 0x80) {
            return {kNone, 1};
        }
        character = character << 6U | (byte & 0x3FU);
    }
    constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    const bool isSurrogate = character >= 0xD800 && character < 0xE000;
    if (character < kSmallest.at(length) || isSurrogate || character > 0x10FFFF) {
        return {kNone, 1};
    }
    return {character, length};
}

bool isControl(char32_t character) {
    return character < 0x20 || (character >= 0x7F && character < 0xA0) || character == 0x2028 ||
           character == 0x2029;
}

/// Characters that make a terminal show what follows in another order.
bool changesDirection(char32_t character) {
    return character == 0x061C || character == 0x200E || character == 0x200F ||
           (character >= 0x202A && character <= 0x202E) ||
           (character >= 0x2066 && character <= 0x2069);
}

bool isSpace(char32_t character) {
    return character == '\t' || character == '\n' || character == '\r';
}

}  // namespace

std::string printable(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const Decoded next = decode(text);
        if (isSpace(next.character)) {
            result += ' ';
        } else if (next.character == kNone || isControl(next.character) ||
                   changesDirection(next.character)) {
            result += kReplacement;
        } else {
            result += text.substr(0, next.length);
        }
        text.remove_prefix(next.length);
    }
    return result;
}

std::size_t displayWidth(std::string_view text) {
    std::size_t width = 0;
    while (!text.empty()) {
        const Decoded next = decode(text);
        if (!contains(kNoWidth, next.character)) {
            width += contains(kWide, next.character) ? 2 : 1;
        }
        text.remove_prefix(next.length);
    }
    return width;
}

std::string fitted(std::string_view text, std::size_t columns) {
    constexpr std::string_view kCut = "...";
    if (displayWidth(text) <= columns) {
        return std::string(text);
    }
    if (columns < kCut.size()) {
        return {};
    }
    std::size_t end = 0;
    while (true) {
        const std::size_t next = end + decode(text.substr(end)).length;
        if (displayWidth(text.substr(0, next)) + kCut.size() > columns) {
            return std::string(text.substr(0, end)) + std::string(kCut);
        }
        end = next;
    }
}

std::string printableLines(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\n\t");
        result += printable(text.substr(0, end));
        if (end == std::string_view::npos) {
            break;
        }
        result += text[end];
        text.remove_prefix(end + 1);
    }
    return result;
}

bool looksLikeNumber(std::string_view text) {
    if (!text.empty() && (text[0] == '-' || text[0] == '+')) {
        text.remove_prefix(1);
    }
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    const bool hasDigit = std::any_of(text.begin(), text.end(), isDigit);
    const bool onlyNumber =
        std::all_of(text.begin(), text.end(), [&](char c) { return isDigit(c) || c == '.'; });
    return hasDigit && onlyNumber && std::count(text.begin(), text.end(), '.') <= 1;
}

std::string quoted(const std::vector<std::string>& names) {
    std::string all;
    for (const std::string& name : names) {
        all += (all.empty() ? "\"" : ", \"") + name + "\"";
    }
    return all.empty() ? "none" : all;
}

}  // namespace workbench
