#include "host/ui/inputs/slider_state.h"

#include "host/base/last_error.h"

#include <Core/Enums.h>

#include <algorithm>
#include <cstddef>

namespace host::ui {
namespace {

// No expression contains it.
const std::string kBetween = " to ";

}  // namespace

SliderState::SliderState(const InputOrigin& origin, const std::string& unit,
                         const NumberLimits& limits, bool hasTwoKnobs)
    : InputState(origin, InputKind::Slider), first_(unit, limits) {
    first_.setValue(limits.minimum);
    if (hasTwoKnobs) {
        second_.emplace(unit, limits);
        second_->setValue(limits.maximum);
    }
}

const NumberField* SliderState::field(SliderKnob knob) const {
    if (knob == SliderKnob::First) return &first_;
    if (second_) return &*second_;
    fail(core::OperationFailed, "the slider \"" + id() + "\" has one knob");
    return nullptr;
}

NumberField* SliderState::field(SliderKnob knob) {
    return const_cast<NumberField*>(static_cast<const SliderState&>(*this).field(knob));
}

bool SliderState::setValue(SliderKnob knob, double value) {
    NumberField* const moved = field(knob);
    if (moved == nullptr) return false;
    return moved->setValue(value) ||
           fail(core::BadApiCallError,
                "the slider \"" + id() + "\" does not have the value " + std::to_string(value));
}

bool SliderState::setStep(double step) {
    if (!first_.setStep(step)) {
        return fail(core::BadApiCallError, "the step of \"" + id() + "\" has to be above 0");
    }
    if (second_) {
        second_->setStep(step);
    }
    return true;
}

void SliderState::drag(SliderKnob knob, double value) {
    if (knob == SliderKnob::First) {
        first_.setValue(first_.nearest(
            second_ && second_->isValid() ? std::min(value, second_->value()) : value));
    } else {
        second_->setValue(
            second_->nearest(first_.isValid() ? std::max(value, first_.value()) : value));
    }
}

const std::string* SliderState::invalidExpression() const {
    if (!first_.isValid()) return &first_.expression();
    return second_ && !second_->isValid() ? &second_->expression() : nullptr;
}

std::string SliderState::shown() const {
    return second_ ? first_.expression() + kBetween + second_->expression() : first_.expression();
}

void SliderState::enter(const std::string& text) {
    const std::size_t end = second_ ? text.find(kBetween) : std::string::npos;
    first_.enter(text.substr(0, end));
    if (end != std::string::npos) {
        second_->enter(text.substr(end + kBetween.size()));
    }
}

}  // namespace host::ui
