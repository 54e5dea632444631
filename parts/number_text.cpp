#include "parts/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace parts {
namespace {

constexpr int kMostDecimals = 18;

int significantDecimals(double value, int significantDigits) {
    if (value == 0) {
        return 0;
    }
    const int leading = static_cast<int>(std::floor(std::log10(std::abs(value))));
    return std::clamp(significantDigits - 1 - leading, 0, kMostDecimals);
}

std::string fixed(double value, int decimals) {
    std::array<char, 400> digits = {};  // the largest double has 309 before the point
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value,
                                      std::chars_format::fixed, decimals);
    return {digits.data(), result.ptr};
}

void dropZeros(std::string& digits) {
    if (digits.find('.') != std::string::npos) {
        digits.erase(digits.find_last_not_of('0') + 1);
        digits.erase(digits.find_last_not_of('.') + 1);
    }
}

/// Nothing is left of a small negative number but its sign.
void dropSignOfZero(std::string& digits) {
    if (digits.find_first_not_of("-0.") == std::string::npos && digits.starts_with('-')) {
        digits.erase(0, 1);
    }
}

}  // namespace

int decimalsOf(const Number& number, const NumberFormat& format) {
    return number.decimals == kSignificant
               ? significantDecimals(number.value, format.significantDigits)
               : std::clamp(number.decimals, 0, kMostDecimals);
}

std::string numberText(const Number& number, const NumberFormat& format) {
    if (!std::isfinite(number.value)) {
        return "";
    }
    std::string digits = fixed(number.value, decimalsOf(number, format));
    if (number.decimals == kSignificant) {
        dropZeros(digits);
    }
    dropSignOfZero(digits);
    if (format.decimalComma) {
        std::ranges::replace(digits, '.', ',');
    }
    return digits;
}

namespace {

std::string extentsText(const Extents& extents, const NumberFormat& format) {
    std::string text;
    for (const double value : extents.values) {
        text += (text.empty() ? "" : " x ") +
                numberText({.value = value, .decimals = extents.decimals}, format);
    }
    return text;
}

}  // namespace

std::string cellText(const Cell& cell, const NumberFormat& format) {
    if (const auto* const text = std::get_if<std::string>(&cell)) {
        return *text;
    }
    if (const auto* const extents = std::get_if<Extents>(&cell)) {
        return extentsText(*extents, format);
    }
    const auto* const number = std::get_if<Number>(&cell);
    return number == nullptr ? "" : numberText(*number, format);
}

}  // namespace parts
