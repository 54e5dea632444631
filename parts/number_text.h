#pragma once

#include "parts/parts_list.h"

#include <string>

namespace parts {

/// How numbers are written out.
struct NumberFormat {
    int significantDigits = 4;  ///< of numbers without fixed decimals; digits before the point stay
    bool decimalComma = false;
};

/// How many decimals a number is written with, before zeros at its end are dropped.
int decimalsOf(const Number& number, const NumberFormat& format);

/// A number in digits: fixed decimals as they are, else as many as the significant digits need,
/// without zeros at the end. Never an exponent, never thousands separators.
std::string numberText(const Number& number, const NumberFormat& format);

/// A cell as a string; a picture is empty.
std::string cellText(const Cell& cell, const NumberFormat& format);

}  // namespace parts
