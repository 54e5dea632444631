#pragma once

#include <StepBasic_Unit.hxx>

#include <string>

namespace step {

/// A unit in the file's own terms, such as "kg m^-3" or "POUND INCH^-3"; empty for none.
std::string unitText(const StepBasic_Unit& unit);

/// A number with all its significant digits and a point, whatever the locale is.
std::string numberText(double value);

}  // namespace step
