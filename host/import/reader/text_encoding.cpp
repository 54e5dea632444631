#include "host/import/reader/text_encoding.h"

#include "host/base/utf8.h"

#include <iconv.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>

namespace step {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

unsigned char byteOf(char c) { return static_cast<unsigned char>(c); }

bool isHigh(char c) { return byteOf(c) >= 0x80; }

bool isAsciiLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

bool isCyrillicCapital(char c) {
    return (byteOf(c) >= 0xC0 && byteOf(c) <= 0xDF) || byteOf(c) == 0xA8;
}

bool isCyrillicSmall(char c) { return byteOf(c) >= 0xE0 || byteOf(c) == 0xB8; }

bool isCyrillicLetter(char c) { return isCyrillicCapital(c) || isCyrillicSmall(c); }

bool isCyrillicPunctuation(char c) {
    // Quotation marks, dashes, the numero sign, degree, a non-breaking space.
    static constexpr std::string_view kMarks = "\x96\x97\x93\x94\xAB\xBB\xB9\xB0\xA0";
    return kMarks.find(c) != std::string_view::npos;
}

bool fitsCyrillic(const std::string& text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (!isHigh(text[at])) {
            continue;
        }
        const char before = at > 0 ? text[at - 1] : ' ';
        const char after = at + 1 < text.size() ? text[at + 1] : ' ';
        if (!isCyrillicLetter(text[at])) {
            if (!isCyrillicPunctuation(text[at])) {
                return false;
            }
        } else if (isAsciiLetter(before) || isAsciiLetter(after) ||
                   (isCyrillicSmall(text[at]) && isCyrillicCapital(after))) {
            return false;
        }
    }
    return true;
}

bool hasCyrillicWord(const std::string& text) {
    return std::adjacent_find(text.begin(), text.end(), [](char a, char b) {
               return isCyrillicLetter(a) && isCyrillicLetter(b);
           }) != text.end();
}

/// The rows of bytes above 127 in a text.
std::vector<std::string> highRows(const std::string& text) {
    std::vector<std::string> rows;
    bool open = false;
    for (const char c : text) {
        if (isHigh(c)) {
            if (!open) {
                rows.emplace_back();
            }
            rows.back() += c;
        }
        open = isHigh(c);
    }
    return rows;
}

bool isChinese(const std::string& row) {
    if (row.size() % 2 != 0) {
        return false;
    }
    for (std::size_t at = 0; at < row.size(); at += 2) {
        const unsigned char lead = byteOf(row[at]);
        const unsigned char trail = byteOf(row[at + 1]);
        const bool symbol = lead >= 0xA1 && lead <= 0xA3;
        const bool character = lead >= 0xB0 && lead <= 0xF7;
        if ((!symbol && !character) || trail < 0xA1 || trail == 0xFF) {
            return false;
        }
    }
    return true;
}

bool areChinese(const std::vector<std::string>& rows) {
    return std::all_of(rows.begin(), rows.end(), isChinese) &&
           std::any_of(rows.begin(), rows.end(),
                       [](const std::string& row) { return row.size() >= 4; });
}

/// A converter to UTF-8; whether the system has it is asked with `valid`.
class Converter {
public:
    explicit Converter(const std::string& encoding)
        : handle_(::iconv_open("UTF-8", encoding.c_str())) {}
    Converter(const Converter&) = delete;
    Converter& operator=(const Converter&) = delete;
    ~Converter() {
        if (valid()) {
            ::iconv_close(handle_);
        }
    }

    [[nodiscard]] bool valid() const { return reinterpret_cast<std::intptr_t>(handle_) != -1; }
    [[nodiscard]] iconv_t handle() const { return handle_; }

private:
    iconv_t handle_;
};

/// None when the system lacks the encoding or the bytes do not fit it.
std::optional<std::string> convert(std::string_view bytes, const std::string& encoding) {
    const Converter converter(encoding);
    if (!converter.valid()) {
        return std::nullopt;
    }
    std::string from(bytes);
    std::string to(from.size() * 4, '\0');
    char* in = from.data();
    char* out = to.data();
    std::size_t inLeft = from.size();
    std::size_t outLeft = to.size();
    if (::iconv(converter.handle(), &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1)) {
        return std::nullopt;
    }
    to.resize(to.size() - outLeft);
    return to;
}

std::string fromLatin1(std::string_view bytes) {
    std::string text;
    for (const char c : bytes) {
        appendCharacter(text, byteOf(c));
    }
    return text;
}

bool isCharacter(char32_t point) {
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    const bool reserved = (point >= 0xFDD0 && point <= 0xFDEF) || (point & 0xFFFE) == 0xFFFE;
    return point <= 0x10FFFF && !surrogate && !reserved;
}

/// The code point at the start of the bytes and its length; a length of 0 when it is malformed.
std::pair<char32_t, std::size_t> firstPoint(std::string_view bytes) {
    const unsigned char lead = byteOf(bytes[0]);
    if (lead < 0x80) {
        return {lead, 1};
    }
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || bytes.size() < length) {
        return {0, 0};
    }
    char32_t point = lead & (0xFFU >> (length + 1));
    for (std::size_t at = 1; at < length; ++at) {
        if ((byteOf(bytes[at]) & 0xC0) != 0x80) {
            return {0, 0};
        }
        point = (point << 6) | (byteOf(bytes[at]) & 0x3F);
    }
    const bool tooLong = (length == 3 && point < 0x800) || (length == 4 && point < 0x10000);
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    return tooLong || surrogate || point > 0x10FFFF ? std::pair<char32_t, std::size_t>(0, 0)
                                                    : std::pair(point, length);
}

}  // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t length = firstPoint(bytes).second;
        if (length == 0) {
            return false;
        }
        bytes.remove_prefix(length);
    }
    return true;
}

Encoding guessEncoding(const std::vector<std::string>& texts) {
    if (std::all_of(texts.begin(), texts.end(), fitsCyrillic) &&
        std::any_of(texts.begin(), texts.end(), hasCyrillicWord)) {
        return Encoding::Cyrillic;
    }
    std::vector<std::string> rows;
    for (const std::string& text : texts) {
        const std::vector<std::string> more = highRows(text);
        rows.insert(rows.end(), more.begin(), more.end());
    }
    return areChinese(rows) ? Encoding::Gbk : Encoding::Latin1;
}

Encoding guessEscapedEncoding(const std::vector<std::string>& rows) {
    return areChinese(rows) ? Encoding::Gbk : Encoding::Latin1;
}

std::string toUtf8(std::string_view bytes, Encoding encoding) {
    switch (encoding) {
        case Encoding::Utf8:
            return isUtf8(bytes) ? std::string(bytes) : fromLatin1(bytes);
        case Encoding::Cyrillic:
            return convert(bytes, "CP1251").value_or(fromLatin1(bytes));
        case Encoding::Gbk:
            return convert(bytes, "GBK").value_or(fromLatin1(bytes));
        case Encoding::Latin1:
            break;
    }
    return fromLatin1(bytes);
}

std::string fromIso8859(std::string_view bytes, int part) {
    return convert(bytes, "ISO-8859-" + std::to_string(part)).value_or(fromLatin1(bytes));
}

void appendCharacter(std::string& text, char32_t point) {
    host::appendUtf8(text, isCharacter(point) ? point : kReplacement);
}

std::string cleaned(std::string_view text) {
    std::string clean;
    while (!text.empty()) {
        const auto [point, length] = firstPoint(text);
        const bool control = point < 0x20 || (point >= 0x7F && point <= 0x9F);
        appendCharacter(clean, length == 0 ? kReplacement : control ? U' ' : point);
        text.remove_prefix(std::max<std::size_t>(length, 1));
    }
    const std::size_t first = clean.find_first_not_of(' ');
    if (first == std::string::npos) {
        return {};
    }
    return clean.substr(first, clean.find_last_not_of(' ') - first + 1);
}

}  // namespace step
