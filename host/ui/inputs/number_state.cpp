#include "host/ui/inputs/number_state.h"

#include "host/base/last_error.h"
#include "host/base/unit_expression.h"

#include <Core/Enums.h>

namespace host::ui {

bool NumberState::setValue(double value) {
    return field_.setValue(value) ||
           fail(core::BadApiCallError, "the value of \"" + id() + "\" is beyond its limits");
}

bool NumberState::setUnit(const std::string& unit) {
    try {
        field_.setUnit(unit);
        return true;
    } catch (const ExpressionError& error) {
        return fail(core::BadApiCallError, error.what());
    }
}

bool NumberState::setStep(double step) {
    return field_.setStep(step) ||
           fail(core::BadApiCallError, "the step of \"" + id() + "\" has to be above 0");
}

}  // namespace host::ui
