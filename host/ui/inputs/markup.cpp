#include "host/ui/inputs/markup.h"

#include "host/base/utf8.h"

#include <array>
#include <cctype>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

namespace host::ui {
namespace {

constexpr std::array<std::pair<std::string_view, std::string_view>, 6> kEntities = {
    {{"amp", "&"}, {"lt", "<"}, {"gt", ">"}, {"quot", "\""}, {"apos", "'"}, {"nbsp", " "}}};
constexpr std::size_t kLongestEntity = 8;

bool isLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }

/// The length of the tag that begins at the start of `text`, 0 where none does.
std::size_t tagLength(std::string_view text) {
    if (text.substr(0, 4) == "<!--") {
        const std::size_t end = text.find("-->", 4);
        return end == std::string_view::npos ? 0 : end + 3;
    }
    const std::size_t name = text.substr(0, 2) == "</" ? 2 : 1;
    if (text.size() <= name || !isLetter(text[name])) return 0;
    char quote = 0;
    for (std::size_t i = name; i < text.size(); ++i) {
        const char c = text[i];
        if (quote != 0) {
            quote = c == quote ? '\0' : quote;
        } else if (c == '"' || c == '\'') {
            quote = c;
        } else if (c == '>') {
            return i + 1;
        }
    }
    return 0;
}

bool isLineBreak(std::string_view tag) {
    return tag.size() >= 4 && std::tolower(static_cast<unsigned char>(tag[1])) == 'b' &&
           std::tolower(static_cast<unsigned char>(tag[2])) == 'r' && !isLetter(tag[3]);
}

bool isCharacter(std::uint32_t code) {
    return code > 0 && code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
}

/// Appends the character of a numeric entity such as "#233" or "#xE9"; false for anything else.
bool appendNumbered(std::string& out, std::string_view name) {
    if (name.size() < 2 || name[0] != '#') return false;
    const bool hexadecimal = name[1] == 'x' || name[1] == 'X';
    const std::string_view digits = name.substr(hexadecimal ? 2 : 1);
    std::uint32_t code = 0;
    const char* end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, code, hexadecimal ? 16 : 10);
    if (read.ec != std::errc() || read.ptr != end || !isCharacter(code)) return false;
    appendUtf8(out, code);
    return true;
}

/// Appends what the entity at the start of `text` stands for; returns its length, 0 where there is
/// none.
std::size_t appendEntity(std::string& out, std::string_view text) {
    const std::size_t end = text.substr(0, kLongestEntity + 2).find(';');
    if (end == std::string_view::npos) return 0;
    const std::string_view name = text.substr(1, end - 1);
    for (const auto& [entity, character] : kEntities) {
        if (entity == name) {
            out += character;
            return end + 1;
        }
    }
    return appendNumbered(out, name) ? end + 1 : 0;
}

}  // namespace

std::string plainText(const std::string& formatted) {
    std::string out;
    out.reserve(formatted.size());
    std::string_view rest = formatted;
    while (!rest.empty()) {
        std::size_t used = 0;
        if (rest[0] == '<') {
            used = tagLength(rest);
            if (used > 0 && isLineBreak(rest.substr(0, used))) {
                out += '\n';
            }
        } else if (rest[0] == '&') {
            used = appendEntity(out, rest);
        }
        if (used == 0) {
            out += rest[0];
            used = 1;
        }
        rest.remove_prefix(used);
    }
    return out;
}

std::string literalMarkup(const std::string& text) {
    if (plainText(text) == text) return text;
    std::string out;
    for (const char c : text) {
        switch (c) {
            case '&':
                out += "&amp;";
                break;
            case '<':
                out += "&lt;";
                break;
            case '>':
                out += "&gt;";
                break;
            default:
                out += c;
        }
    }
    return out;
}

}  // namespace host::ui
