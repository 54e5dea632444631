#include "host/import/reader/part21_string.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace step {
namespace {

std::optional<std::uint32_t> hexadecimal(std::string_view digits) {
    std::uint32_t value = 0;
    for (const char c : digits) {
        const int digit = c >= '0' && c <= '9'   ? c - '0'
                          : c >= 'A' && c <= 'F' ? c - 'A' + 10
                          : c >= 'a' && c <= 'f' ? c - 'a' + 10
                                                 : -1;
        if (digit < 0) {
            return std::nullopt;
        }
        value = value * 16 + static_cast<std::uint32_t>(digit);
    }
    return value;
}

/// Walks one literal and passes its pieces to a listener: rows of plain bytes, rows of bytes
/// that were escaped one by one, and text that is certain.
class Walk {
public:
    explicit Walk(std::string_view literal) : rest_(literal) {}
    virtual ~Walk() = default;

    void run() {
        while (!rest_.empty()) {
            if (!takeByte() && !takePage() && !takeShifted() && !takeUnicode() && !takeMark()) {
                takePlain();
            }
        }
        flush();
    }

protected:
    virtual void plain(const std::string& bytes) = 0;
    virtual void escaped(const std::string& bytes) = 0;
    virtual void certain(const std::string& text) = 0;

private:
    void flush() {
        if (!plain_.empty()) {
            plain(plain_);
            plain_.clear();
        }
        if (!escaped_.empty()) {
            escaped(escaped_);
            escaped_.clear();
        }
    }

    void takePlain() {
        if (!escaped_.empty()) {
            flush();
        }
        plain_ += rest_.front();
        rest_.remove_prefix(1);
    }

    /// An escaped byte: \X\HH
    bool takeByte() {
        if (!rest_.starts_with("\\X\\") || rest_.size() < 5) {
            return false;
        }
        const auto value = hexadecimal(rest_.substr(3, 2));
        if (!value) {
            return false;
        }
        if (!plain_.empty()) {
            flush();
        }
        escaped_ += static_cast<char>(*value);
        rest_.remove_prefix(5);
        return true;
    }

    /// The page of ISO 8859 from here on: \PA\ to \PI\ .
    bool takePage() {
        if (rest_.size() < 4 || !rest_.starts_with("\\P") || rest_[3] != '\\' || rest_[2] < 'A' ||
            rest_[2] > 'I') {
            return false;
        }
        flush();
        part_ = rest_[2] - 'A' + 1;
        rest_.remove_prefix(4);
        return true;
    }

    /// A character of the upper half of the page: \S\c
    bool takeShifted() {
        if (!rest_.starts_with("\\S\\") || rest_.size() < 4) {
            return false;
        }
        flush();
        const std::string byte(1, static_cast<char>(rest_[3] | 0x80));
        certain(fromIso8859(byte, part_));
        rest_.remove_prefix(4);
        return true;
    }

    /// Unicode in units of 4 or 8 digits: \X2\...\X0\ and \X4\...\X0\ .
    bool takeUnicode() {
        const std::size_t digits = rest_.starts_with("\\X2\\")   ? 4
                                   : rest_.starts_with("\\X4\\") ? 8
                                                                 : 0;
        if (digits == 0) {
            return false;
        }
        flush();
        rest_.remove_prefix(4);
        std::u32string units;
        while (rest_.size() >= digits && rest_.front() != '\\') {
            units += static_cast<char32_t>(hexadecimal(rest_.substr(0, digits)).value_or(0xFFFD));
            rest_.remove_prefix(digits);
        }
        const std::size_t end = rest_.find("\\X0\\");
        rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 4);
        certain(joined(units));
        return true;
    }

    static std::string joined(const std::u32string& units) {
        std::string text;
        for (std::size_t at = 0; at < units.size(); ++at) {
            char32_t point = units[at];
            const bool pair = at + 1 < units.size() && point >= 0xD800 && point < 0xDC00 &&
                              units[at + 1] >= 0xDC00 && units[at + 1] < 0xE000;
            if (pair) {
                point = 0x10000 + ((point - 0xD800) << 10) + (units[++at] - 0xDC00);
            }
            appendCharacter(text, point);
        }
        return text;
    }

    /// A doubled quote or backslash, and the print directives \N\ and \F\, which mean a new line.
    bool takeMark() {
        if (rest_.starts_with("''") || rest_.starts_with("\\\\")) {
            rest_.remove_prefix(1);
            takePlain();
            return true;
        }
        if (rest_.starts_with("\\N\\") || rest_.starts_with("\\F\\")) {
            flush();
            certain(" ");
            rest_.remove_prefix(3);
            return true;
        }
        return false;
    }

    std::string_view rest_;
    std::string plain_;
    std::string escaped_;
    int part_ = 1;
};

class Gather final : public Walk {
public:
    Gather(std::string_view literal, std::vector<std::string>& rows) : Walk(literal), rows_(rows) {}

    std::string all;  ///< the plain bytes

private:
    void plain(const std::string& bytes) override { all += bytes; }
    void escaped(const std::string& bytes) override { rows_.push_back(bytes); }
    void certain(const std::string& /*text*/) override {}

    std::vector<std::string>& rows_;
};

class Decode final : public Walk {
public:
    Decode(std::string_view literal, Encoding raw, Encoding escape)
        : Walk(literal), raw_(raw), escape_(escape) {}

    std::string text;

private:
    void plain(const std::string& bytes) override {
        text += toUtf8(bytes, isUtf8(bytes) ? Encoding::Utf8 : raw_);
    }
    void escaped(const std::string& bytes) override { text += toUtf8(bytes, escape_); }
    void certain(const std::string& more) override { text += more; }

    Encoding raw_;
    Encoding escape_;
};

}  // namespace

void StringReader::consider(std::string_view literal) {
    Gather gather(literal, escaped_);
    gather.run();
    if (!isUtf8(gather.all)) {
        raw_.push_back(gather.all);
    }
}

void StringReader::decideEncodings() {
    rawEncoding_ = guessEncoding(raw_);
    escapedEncoding_ = guessEscapedEncoding(escaped_);
    raw_.clear();
    escaped_.clear();
}

std::string StringReader::read(std::string_view literal) const {
    Decode decode(literal, rawEncoding_, escapedEncoding_);
    decode.run();
    return decode.text;
}

}  // namespace step
