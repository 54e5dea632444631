#pragma once

#include <string>

namespace tarnix {

/// The integer that `text` begins with, as `std::stoi` reads it in base 10.
///
/// Leading spaces are skipped, a sign may follow, and what follows the digits is ignored:
/// "12abc" is 12. Throws `std::invalid_argument` ("invalid stoi argument") where no digit is
/// found and `std::out_of_range` ("stoi argument out of range") where the number is no `int`: the
/// same messages from every compiler.
int parseInt(const std::string& text);

/// The number that `text` begins with, as `std::stod` reads it, with the point as decimal separator
/// whatever locale the process has.
///
/// Leading spaces, a sign, decimal and hexadecimal numbers with an exponent, "inf", "infinity" and
/// "nan" in any case are read; what follows is ignored. Throws `std::invalid_argument` ("invalid
/// stod argument") where no number is found, and `std::out_of_range` ("stod argument out of range")
/// where it is too large for a double, or so small that a double could only hold it with a loss: a
/// subnormal double that is spelled exactly is read. glibc overlooks that loss in some hexadecimal
/// numbers with one digit too many; here they are out of range too.
double parseDouble(const std::string& text);

/// `value` in fixed notation with exactly `decimals` digits after the point, rounded as a stream
/// rounds: to the nearest, on the value's exact binary meaning. No grouping; always the point.
///
/// Not a number is "nan" or "-nan", an infinity "inf" or "-inf".
std::string formatFixed(double value, int decimals);

/// `value` in decimal, without grouping.
std::string decimal(int value);

}  // namespace tarnix
