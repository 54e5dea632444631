#pragma once

#include <optional>
#include <string>
#include <vector>

namespace host::ui {

/// What a number may be, in the host's units.
struct NumberLimits {
    double minimum = 0;
    double maximum = 0;
    double step = 1;             ///< in the unit of the input
    bool whole = false;          ///< only whole numbers
    std::vector<double> values;  ///< the only ones, ascending; empty where all between are
};

/// A field in which a number is typed as an expression.
class NumberField {
public:
    explicit NumberField(std::string unit, std::optional<NumberLimits> limits = std::nullopt);

    /// Replaces what is typed, as the user or code does. It is kept although it may have no value.
    void enter(const std::string& expression);

    /// Replaces the value; false, with nothing changed, for one that the limits exclude.
    bool setValue(double value);

    /// Evaluates what is typed in another unit; throws an `ExpressionError`, with nothing changed,
    /// for an unknown one.
    void setUnit(const std::string& unit);

    /// False, with nothing changed, for a step that is not above 0, and without limits.
    bool setStep(double step);

    /// The value after so many clicks on an arrow, which stop at the limits: the step is added, or
    /// the next listed value taken.
    [[nodiscard]] double spun(int steps) const;

    /// The value nearest to this one that the limits allow.
    [[nodiscard]] double nearest(double value) const;

    [[nodiscard]] double value() const { return value_.value_or(0); }
    [[nodiscard]] bool isValid() const { return value_.has_value(); }
    [[nodiscard]] const std::string& expression() const { return expression_; }
    [[nodiscard]] const std::string& unit() const { return unit_; }
    [[nodiscard]] const std::optional<NumberLimits>& limits() const { return limits_; }

private:
    [[nodiscard]] std::optional<double> evaluated(const std::string& expression,
                                                  const std::string& unit) const;

    /// The value, as it is listed if values are; none for one that the limits exclude.
    [[nodiscard]] std::optional<double> allowed(double value) const;

    std::string unit_;
    std::string expression_;
    std::optional<double> value_ = 0;
    std::optional<NumberLimits> limits_;
};

}  // namespace host::ui
