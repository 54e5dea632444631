#pragma once

#include "host/ui/inputs/input_state.h"

#include <optional>
#include <string>

namespace host::ui {

/// What a number may be, in the host's units.
struct NumberLimits {
    double minimum = 0;
    double maximum = 0;
    double step = 1;     ///< in the unit of the input
    bool whole = false;  ///< only whole numbers
};

/// A number that is typed as an expression.
class NumberState : public InputState {
public:
    NumberState(const InputOrigin& origin, std::string unit,
                std::optional<NumberLimits> limits = std::nullopt);

    /// Replaces what is typed, as the user or code does. It is kept although it may have no value.
    void enter(const std::string& expression);

    /// Replaces the value; false, with nothing changed, beyond the limits.
    bool setValue(double value);

    /// Evaluates what is typed in another unit; false, with nothing changed, for an unknown one.
    bool setUnit(const std::string& unit);

    bool setStep(double step);

    /// One click on an arrow; stops at the limits.
    void spin(int steps);

    [[nodiscard]] double value() const { return value_.value_or(0); }
    [[nodiscard]] bool isValidNumber() const { return value_.has_value(); }
    [[nodiscard]] const std::string& expression() const { return expression_; }
    [[nodiscard]] const std::string& unit() const { return unit_; }
    [[nodiscard]] const std::optional<NumberLimits>& limits() const { return limits_; }

protected:
    [[nodiscard]] bool isWithin(double value) const;

private:
    [[nodiscard]] std::optional<double> evaluated(const std::string& expression,
                                                  const std::string& unit) const;

    std::string unit_;
    std::string expression_;
    std::optional<double> value_ = 0;
    std::optional<NumberLimits> limits_;
};

/// An input whose kind is `Number`.
inline NumberState& numberOf(InputState* input) { return static_cast<NumberState&>(*input); }

}  // namespace host::ui
