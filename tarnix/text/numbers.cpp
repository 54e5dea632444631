#include "tarnix/text/numbers.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <system_error>

namespace tarnix {
namespace {

std::string_view withoutLeadingSpaces(std::string_view text) {
    const auto first = text.find_first_not_of(" \t\n\v\f\r");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

bool startsWithSign(std::string_view text) {
    return !text.empty() && (text.front() == '+' || text.front() == '-');
}

template <class Number, class... Format>
std::from_chars_result read(std::string_view text, Number& value, Format... format) {
    return std::from_chars(text.data(), text.data() + text.size(), value, format...);
}

/// "inf", "infinity" and "nan" are read as numbers.
bool startsWithWord(std::string_view text) { return text.find_first_of("iInN") == 0; }

/// Whether `text`, which follows "0x", goes on as a hexadecimal number.
bool startsWithHexadecimal(std::string_view text) {
    double ignored = 0;
    return !text.empty() && !startsWithSign(text) && !startsWithWord(text) &&
           read(text, ignored, std::chars_format::hex).ec != std::errc::invalid_argument;
}

[[noreturn]] void throwOutOfRange() { throw std::out_of_range("stod argument out of range"); }

/// Compilers differ in what they report for results that leave the range, so the value decides.
/// `mantissa` is what precedes the exponent.
double inRange(double value, std::string_view mantissa) {
    const bool isZero = mantissa.find_first_not_of("0.") == std::string_view::npos;
    const bool tooSmall = std::abs(value) < std::numeric_limits<double>::min() && !isZero;
    if (std::isinf(value) || tooSmall) {
        throwOutOfRange();
    }
    return value;
}

/// Reads the number that `text` begins with; `exponent` names the letters that begin an exponent.
double parseNumber(std::string_view text, std::chars_format format, const char* exponent) {
    double value = 0;
    const auto result = read(text, value, format);
    if (result.ec == std::errc::invalid_argument) {
        throw std::invalid_argument("invalid stod argument");
    }
    if (result.ec == std::errc::result_out_of_range) {
        throwOutOfRange();
    }
    if (startsWithWord(text)) {
        return value;
    }
    const auto number = text.substr(0, static_cast<std::size_t>(result.ptr - text.data()));
    return inRange(value, number.substr(0, number.find_first_of(exponent)));
}

/// Reads what follows the sign.
double parseMagnitude(std::string_view text) {
    if (startsWithSign(text)) {
        throw std::invalid_argument("invalid stod argument");
    }
    const bool prefixed = text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X";
    // Where no digit follows, "0x" is a zero before an "x".
    if (prefixed && startsWithHexadecimal(text.substr(2))) {
        return parseNumber(text.substr(2), std::chars_format::hex, "pP");
    }
    return parseNumber(text, std::chars_format::general, "eE");
}

}  // namespace

int parseInt(const std::string& text) {
    auto digits = withoutLeadingSpaces(text);
    if (!digits.empty() && digits.front() == '+') {
        digits.remove_prefix(1);
        if (startsWithSign(digits)) {
            throw std::invalid_argument("invalid stoi argument");
        }
    }
    int value = 0;
    const auto result = read(digits, value);
    if (result.ec == std::errc::invalid_argument) {
        throw std::invalid_argument("invalid stoi argument");
    }
    if (result.ec == std::errc::result_out_of_range) {
        throw std::out_of_range("stoi argument out of range");
    }
    return value;
}

double parseDouble(const std::string& text) {
    auto number = withoutLeadingSpaces(text);
    if (!startsWithSign(number)) {
        return parseMagnitude(number);
    }
    const bool negative = number.front() == '-';
    const double magnitude = parseMagnitude(number.substr(1));
    return negative ? -magnitude : magnitude;
}

std::string formatFixed(double value, int decimals) {
    constexpr std::size_t kLongestInteger = 330;  // sign, 309 digits and the point
    std::string text(kLongestInteger + static_cast<std::size_t>(decimals), '\0');
    const auto result = std::to_chars(text.data(), text.data() + text.size(), value,
                                      std::chars_format::fixed, decimals);
    text.resize(static_cast<std::size_t>(result.ptr - text.data()));
    return text;
}

std::string decimal(int value) { return std::to_string(value); }

}  // namespace tarnix
