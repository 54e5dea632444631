#pragma once

#include "host/ui/inputs/input_state.h"
#include "host/ui/inputs/number_field.h"

#include <optional>
#include <string>

namespace host::ui {

/// A number that is typed as an expression.
class NumberState : public InputState {
public:
    NumberState(const InputOrigin& origin, const std::string& unit,
                const std::optional<NumberLimits>& limits = std::nullopt)
        : InputState(origin, InputKind::Number), field_(unit, limits) {}

    [[nodiscard]] NumberField& field() { return field_; }
    [[nodiscard]] const NumberField& field() const { return field_; }

    /// What the field does; a refusal is noted as the last error, with the id of the input.
    /// @{
    bool setValue(double value);
    bool setUnit(const std::string& unit);
    bool setStep(double step);
    /// @}

private:
    NumberField field_;
};

/// An input whose kind is `Number`.
inline NumberState& numberOf(InputState* input) { return static_cast<NumberState&>(*input); }

}  // namespace host::ui
