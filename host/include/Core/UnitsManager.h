#pragma once

#include <Core/Base.h>

#include <string>

namespace adsk::core {

/// Evaluates and formats values with units. The host's own are cm, radians and kg.
///
/// An expression has numbers, units, `+ - * / ^`, parentheses, "PI", and functions such as `sqrt`
/// and `sin`. A plain number that is added to one with units, and a plain result, count in the
/// units asked for.
class UnitsManager : public Base {
public:
    static const char* classType();  ///< "adsk::core::UnitsManager"

    /// The length units that the design is shown in, such as "mm".
    [[nodiscard]] virtual std::string defaultLengthUnits() const = 0;

    /// The units that the host counts lengths in: "cm".
    [[nodiscard]] virtual std::string internalUnits() const = 0;

    /// The value of an expression in the host's units. For no `units`, or for "mm" in an expression
    /// of other units, see above. -1, with the last error set, for one that has no such value.
    virtual double evaluateExpression(const std::string& expression,
                                      const std::string& units = "") const = 0;

    /// Whether `evaluateExpression` has a value for it.
    virtual bool isValidExpression(const std::string& expression,
                                   const std::string& units) const = 0;

    /// A value in other units of the same kind; -1, with the last error set, for units that are
    /// unknown or of another kind. "internalUnits" stands for the host's own.
    virtual double convert(double valueInInputUnits, const std::string& inputUnits,
                           const std::string& outputUnits) const = 0;

    /// A value of the host's units as a string with three decimals, such as "25.400 mm"; in the
    /// default length units for no `displayUnits`. Empty, with the last error set, for an unknown
    /// unit.
    virtual std::string formatInternalValue(double internalValue,
                                            const std::string& displayUnits = "",
                                            bool showUnits = true) const = 0;
};

}  // namespace adsk::core
