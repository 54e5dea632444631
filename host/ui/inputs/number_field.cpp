#include "host/ui/inputs/number_field.h"

#include "host/base/unit_expression.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace host::ui {
namespace {

// What is listed is typed with other units, and comes out with the last digits different.
constexpr double kSame = 1e-9;

/// The listed value that is nearest to this one.
double nearestIn(const std::vector<double>& values, double value) {
    return *std::min_element(values.begin(), values.end(), [value](double left, double right) {
        return std::abs(left - value) < std::abs(right - value);
    });
}

}  // namespace

NumberField::NumberField(std::string unit, std::optional<NumberLimits> limits)
    : unit_(std::move(unit)), limits_(std::move(limits)) {}

std::optional<double> NumberField::evaluated(const std::string& expression,
                                             const std::string& unit) const {
    try {
        return allowed(evaluateExpression(expression, unit));
    } catch (const ExpressionError&) {
        return std::nullopt;
    }
}

std::optional<double> NumberField::allowed(double value) const {
    if (!limits_) return value;
    if (!limits_->values.empty()) {
        const double listed = nearestIn(limits_->values, value);
        return std::abs(listed - value) <= kSame ? std::optional(listed) : std::nullopt;
    }
    const bool within = value >= limits_->minimum && value <= limits_->maximum &&
                        (!limits_->whole || value == std::floor(value));
    return within ? std::optional(value) : std::nullopt;
}

double NumberField::nearest(double value) const {
    if (!limits_) return value;
    if (!limits_->values.empty()) return nearestIn(limits_->values, value);
    const double between = std::clamp(value, limits_->minimum, limits_->maximum);
    return limits_->whole ? std::round(between) : between;
}

void NumberField::enter(const std::string& expression) {
    expression_ = expression;
    value_ = evaluated(expression, unit_);
}

bool NumberField::setValue(double value) {
    const std::optional<double> taken = allowed(value);
    if (!taken) return false;
    value_ = taken;
    expression_ = formatQuantity(*taken, unit_, /*showUnit=*/true);
    return true;
}

void NumberField::setUnit(const std::string& unit) {
    unitQuantity(unit);
    unit_ = unit;
    value_ = evaluated(expression_, unit_);
}

bool NumberField::setStep(double step) {
    if (!limits_ || !(step > 0)) return false;
    limits_->step = step;
    return true;
}

double NumberField::spun(int steps) const {
    const std::vector<double>& values = limits_->values;
    if (values.empty()) {
        return nearest(value() + steps * limits_->step * unitQuantity(unit_).value);
    }
    const auto from = std::lower_bound(values.begin(), values.end(), nearest(value()));
    const auto last = static_cast<std::ptrdiff_t>(values.size()) - 1;
    const std::ptrdiff_t place = (from - values.begin()) + steps;
    return values[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(place, 0, last))];
}

}  // namespace host::ui
