#include "host/ui/inputs/number_state.h"

#include "host/base/last_error.h"
#include "host/base/unit_expression.h"

#include <Core/Enums.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace host::ui {

NumberState::NumberState(const InputOrigin& origin, std::string unit,
                         std::optional<NumberLimits> limits)
    : InputState(origin, InputKind::Number), unit_(std::move(unit)), limits_(limits) {}

std::optional<double> NumberState::evaluated(const std::string& expression,
                                             const std::string& unit) const {
    try {
        const double value = evaluateExpression(expression, unit);
        return isWithin(value) ? std::optional(value) : std::nullopt;
    } catch (const ExpressionError&) {
        return std::nullopt;
    }
}

bool NumberState::isWithin(double value) const {
    return !limits_ || (value >= limits_->minimum && value <= limits_->maximum &&
                        (!limits_->whole || value == std::floor(value)));
}

void NumberState::enter(const std::string& expression) {
    expression_ = expression;
    value_ = evaluated(expression, unit_);
}

bool NumberState::setValue(double value) {
    if (!isWithin(value)) {
        return fail(core::BadApiCallError, "the value of \"" + id() + "\" is beyond its limits");
    }
    value_ = value;
    expression_ = formatQuantity(value, unit_, /*showUnit=*/true);
    return true;
}

bool NumberState::setUnit(const std::string& unit) {
    try {
        unitQuantity(unit);
    } catch (const ExpressionError& error) {
        return fail(core::BadApiCallError, error.what());
    }
    unit_ = unit;
    value_ = evaluated(expression_, unit_);
    return true;
}

bool NumberState::setStep(double step) {
    if (!limits_ || !(step > 0)) {
        return fail(core::BadApiCallError, "the step of \"" + id() + "\" has to be above 0");
    }
    limits_->step = step;
    return true;
}

void NumberState::spin(int steps) {
    const double one = unitQuantity(unit_).value;
    const double wanted = value() + steps * limits_->step * one;
    setValue(std::clamp(wanted, limits_->minimum, limits_->maximum));
}

}  // namespace host::ui
