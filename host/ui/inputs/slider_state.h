#pragma once

#include "host/ui/inputs/input_state.h"
#include "host/ui/inputs/number_field.h"
#include "host/ui/inputs/slider_knob.h"

#include <optional>
#include <string>

namespace host::ui {

/// A slider with one or two knobs.
class SliderState : public InputState {
public:
    SliderState(const InputOrigin& origin, const std::string& unit, const NumberLimits& limits,
                bool hasTwoKnobs);

    /// The field of a knob; null for a second one where there is one alone, which is noted as the
    /// last error.
    [[nodiscard]] const NumberField* field(SliderKnob knob) const;
    [[nodiscard]] NumberField* field(SliderKnob knob);

    [[nodiscard]] bool hasTwoKnobs() const { return second_.has_value(); }
    [[nodiscard]] const NumberField& first() const { return first_; }
    [[nodiscard]] const NumberLimits& limits() const { return *first_.limits(); }

    /// Moves a knob; false, with nothing changed and the reason noted, for a value that the slider
    /// does not have, and for a knob that it does not have.
    bool setValue(SliderKnob knob, double value);

    /// Of both fields; false, with the reason noted, for a step that is not above 0.
    bool setStep(double step);

    /// Drags a knob, which has to be there, as near to a value as it goes: not past the other one.
    void drag(SliderKnob knob, double value);

    /// The expression that has no value; null where all have one.
    [[nodiscard]] const std::string* invalidExpression() const;

    /// What the fields show, with " to " between two.
    [[nodiscard]] std::string shown() const;

    /// Types into the fields what `shown` returns; without " to ", into the first one alone.
    void enter(const std::string& text);

    std::string leftText;
    std::string rightText;

private:
    NumberField first_;
    std::optional<NumberField> second_;
};

/// An input whose kind is `Slider`.
inline SliderState& sliderOf(InputState* input) { return static_cast<SliderState&>(*input); }

}  // namespace host::ui
