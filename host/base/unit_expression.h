#pragma once

#include <stdexcept>
#include <string>

/// Expressions with units, such as "2 in + 4 mm * 3", as users type them into dialogs.
namespace host {

/// A number with the powers of its dimensions, in the host's units: cm, radians and kg.
struct Quantity {
    double value = 0;
    int length = 0;
    int angle = 0;
    int mass = 0;

    [[nodiscard]] bool isPlain() const { return length == 0 && angle == 0 && mass == 0; }
    [[nodiscard]] bool hasDimensionsOf(const Quantity& other) const {
        return length == other.length && angle == other.angle && mass == other.mass;
    }
};

/// An expression that cannot be evaluated; the text says what was wrong and where.
class ExpressionError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// One of a unit such as "mm", "cm^2" or "kg/m^3"; a plain 1 for an empty string. Throws an
/// `ExpressionError` for an unknown one.
Quantity unitQuantity(const std::string& unit);

/// Evaluates `+ - * / ^`, parentheses, "PI", and functions of one argument: sqrt, abs, floor, ceil,
/// round, exp, ln, log, and those of angles, which take plain numbers as radians.
///
/// A plain number that is added to one with units, and a result that is plain, count in `unit`. The
/// result has the dimensions of `unit`. Throws an `ExpressionError` otherwise.
double evaluateExpression(const std::string& expression, const std::string& unit);

/// A value of the host's units as a string: with three decimals and the unit, if it has one and it
/// is to be shown, such as "25.400 mm"; a plain number without zeros at its end. Throws an
/// `ExpressionError` for an unknown unit.
std::string formatQuantity(double value, const std::string& unit, bool showUnit);

}  // namespace host
