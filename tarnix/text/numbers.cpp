#include "tarnix/text/numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <limits>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <vector>

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

[[noreturn]] void throwOutOfRange() { throw std::out_of_range("stod argument out of range"); }

constexpr int kDecimalBase = 10;
constexpr int kHexadecimalBase = 16;

char lowerCase(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

/// The value of a digit; the base where it is none.
int digitValue(char letter, int base) {
    const auto place = std::string_view("0123456789abcdef").find(lowerCase(letter));
    return std::min(base, place == std::string_view::npos ? base : static_cast<int>(place));
}

/// Where the digits that begin at `start` end.
std::size_t endOfDigits(std::string_view text, std::size_t start, int base) {
    while (start < text.size() && digitValue(text[start], base) < base) {
        ++start;
    }
    return start;
}

/// A number without sign and prefix, as it is spelled.
struct Spelling {
    int base = kDecimalBase;
    std::string_view mantissa;  ///< digits, with a point among them or none; empty for no number
    std::string_view exponent;  ///< after its letter; empty for none
    std::string_view whole;     ///< from the first digit to the last
};

/// The mantissa that `text` begins with.
std::string_view mantissaOf(std::string_view text, int base) {
    const std::size_t point = endOfDigits(text, 0, base);
    if (point == text.size() || text[point] != '.') {
        return text.substr(0, point);
    }
    const std::size_t end = endOfDigits(text, point + 1, base);
    return text.substr(0, end > 1 ? end : 0);
}

/// The number that `text` begins with. A letter without digits after it is not an exponent.
Spelling spellingOf(std::string_view text, int base) {
    Spelling number{.base = base, .mantissa = mantissaOf(text, base), .exponent = {}, .whole = {}};
    number.whole = number.mantissa;
    const std::size_t letter = number.mantissa.size();
    if (letter == 0 || letter == text.size() ||
        lowerCase(text[letter]) != (base == kDecimalBase ? 'e' : 'p')) {
        return number;
    }
    const std::size_t digits = letter + (startsWithSign(text.substr(letter + 1)) ? 2 : 1);
    const std::size_t end = endOfDigits(text, digits, kDecimalBase);
    if (end > digits) {
        number.exponent = text.substr(letter + 1, end - letter - 1);
        number.whole = text.substr(0, end);
    }
    return number;
}

/// A positive number without loss, as digits of a base: 0.d1d2d3... times the base to the exponent.
struct Exact {
    std::string digits;  ///< the first and the last are not zeros
    long long exponent = 0;

    bool operator==(const Exact&) const = default;
    bool operator<(const Exact& other) const {
        return exponent != other.exponent ? exponent < other.exponent : digits < other.digits;
    }
};

/// Takes zeros off both ends; `digits` precede the point by `exponent` places.
Exact exact(const std::string& digits, long long exponent) {
    const std::size_t first = digits.find_first_not_of('0');
    const std::size_t last = digits.find_last_not_of('0');
    return {digits.substr(first, last - first + 1), exponent - static_cast<long long>(first)};
}

std::string bits(unsigned long long value, int count) {
    std::string text;
    while (count-- > 0) {
        text += (value >> count & 1U) != 0 ? '1' : '0';
    }
    return text;
}

/// A number that is not zero, as bits where its base is 16.
Exact exact(const Spelling& number) {
    std::string digits;
    std::size_t point = std::string::npos;
    constexpr int kBitsOfDigit = 4;
    for (const char letter : number.mantissa) {
        if (letter == '.') {
            point = digits.size();
        } else if (number.base == kHexadecimalBase) {
            digits += bits(static_cast<unsigned>(digitValue(letter, number.base)), kBitsOfDigit);
        } else {
            digits += letter;
        }
    }
    long long exponent = 0;
    const auto unsignedExponent = number.exponent.substr(number.exponent.starts_with('+') ? 1 : 0);
    // One that does not fit was out of range before.
    static_cast<void>(read(unsignedExponent, exponent));
    return exact(digits, exponent + static_cast<long long>(std::min(point, digits.size())));
}

/// The decimal digits of `value` times 5 to the `power`.
std::string timesPowerOfFive(unsigned long long value, int power) {
    constexpr unsigned long long kLimb = 1'000'000'000;
    constexpr int kDigitsOfLimb = 9;
    constexpr int kStep = 12;
    constexpr unsigned long long kFiveToStep = 244'140'625;
    std::vector<unsigned long long> limbs = {value % kLimb, value / kLimb};
    while (power > 0) {
        const unsigned long long factor = power >= kStep ? kFiveToStep : 5;
        power -= power >= kStep ? kStep : 1;
        unsigned long long carry = 0;
        for (unsigned long long& limb : limbs) {
            carry += limb * factor;
            limb = carry % kLimb;
            carry /= kLimb;
        }
        limbs.push_back(carry);
    }
    std::string digits;
    for (auto limb = limbs.rbegin(); limb != limbs.rend(); ++limb) {
        const std::string text = std::to_string(*limb);
        digits += std::string(kDigitsOfLimb - text.size(), '0') + text;
    }
    return digits;
}

/// `value` times 2 to the -`power`, as decimal digits or as bits.
Exact exactOf(unsigned long long value, int power, int base) {
    constexpr int kBits = 64;
    const std::string digits =
        base == kDecimalBase ? timesPowerOfFive(value, power) : bits(value, kBits);
    return exact(digits, static_cast<long long>(digits.size()) - power);
}

/// Whether a number that came out as `value`, no more than the smallest normal double, is too small
/// as the processor sees it: without loss of digits a smaller double is what it is, and what 53
/// bits would round up to the smallest normal one is that.
bool isTooSmall(double value, const Spelling& number) {
    constexpr int kUnit = 1074;  // the smallest double is 2 to the -1074
    constexpr unsigned long long kRim = (1ULL << 54U) - 1;
    const Exact spelled = exact(number);
    if (value == std::numeric_limits<double>::min()) {
        return spelled < exactOf(kRim, kUnit + 2, number.base);
    }
    const auto units = static_cast<unsigned long long>(std::ldexp(value, kUnit));
    return units == 0 || spelled != exactOf(units, kUnit, number.base);
}

/// Reads a number that is there. Compilers differ in what they report for results that leave the
/// range, so the value decides.
double parseSpelling(const Spelling& number) {
    if (number.mantissa.find_first_not_of("0.") == std::string_view::npos) {
        return 0;
    }
    double value = 0;
    const auto format =
        number.base == kDecimalBase ? std::chars_format::general : std::chars_format::hex;
    const auto result = read(number.whole, value, format);
    const bool isLarge = value > std::numeric_limits<double>::min() && !std::isinf(value);
    if (result.ec != std::errc() ||
        (!isLarge && (std::isinf(value) || isTooSmall(value, number)))) {
        throwOutOfRange();
    }
    return value;
}

/// Reads "inf", "infinity" or "nan".
double parseWord(std::string_view text) {
    double value = 0;
    if (read(text, value).ec != std::errc()) {
        throw std::invalid_argument("invalid stod argument");
    }
    return value;
}

/// Reads what follows the sign.
double parseMagnitude(std::string_view text) {
    if (startsWithWord(text)) {
        return parseWord(text);
    }
    if (text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X") {
        const Spelling number = spellingOf(text.substr(2), kHexadecimalBase);
        // Where no digit follows, "0x" is a zero before an "x".
        return number.mantissa.empty() ? 0 : parseSpelling(number);
    }
    const Spelling number = spellingOf(text, kDecimalBase);
    if (number.mantissa.empty()) {
        throw std::invalid_argument("invalid stod argument");
    }
    return parseSpelling(number);
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
