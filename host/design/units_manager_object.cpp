#include "host/design/units_manager_object.h"

#include "host/base/last_error.h"
#include "host/base/unit_expression.h"

#include <Core/Enums.h>

namespace host {
namespace {

constexpr const char* kLengthUnit = "mm";
constexpr double kFailed = -1;

std::string unitOf(const std::string& units) {
    // The host's own: a length in cm.
    return units == "internalUnits" ? "cm" : units;
}

}  // namespace

std::string UnitsManagerObject::defaultLengthUnits() const {
    if (closed<"defaultLengthUnits">(*this)) return {};
    return kLengthUnit;
}

std::string UnitsManagerObject::internalUnits() const {
    if (closed<"internalUnits">(*this)) return {};
    return "cm";
}

double UnitsManagerObject::evaluateExpression(const std::string& expression,
                                              const std::string& units) const {
    if (closed<"evaluateExpression">(*this)) return {};
    try {
        return host::evaluateExpression(expression, units.empty() ? kLengthUnit : unitOf(units));
    } catch (const ExpressionError& error) {
        fail(core::ExpressionError, error.what());
        return kFailed;
    }
}

bool UnitsManagerObject::isValidExpression(const std::string& expression,
                                           const std::string& units) const {
    if (closed<"isValidExpression">(*this)) return {};
    try {
        host::evaluateExpression(expression, unitOf(units));
        return true;
    } catch (const ExpressionError&) {
        return false;
    }
}

double UnitsManagerObject::convert(double valueInInputUnits, const std::string& inputUnits,
                                   const std::string& outputUnits) const {
    if (closed<"convert">(*this)) return {};
    try {
        const Quantity from = unitQuantity(unitOf(inputUnits));
        const Quantity to = unitQuantity(unitOf(outputUnits));
        if (from.hasDimensionsOf(to)) return valueInInputUnits * from.value / to.value;
        fail(core::BadApiCallError, "UnitsManager::convert: \"" + inputUnits + "\" and \"" +
                                        outputUnits + "\" are of different kinds");
    } catch (const ExpressionError& error) {
        fail(core::BadApiCallError, std::string("UnitsManager::convert: ") + error.what());
    }
    return kFailed;
}

std::string UnitsManagerObject::formatInternalValue(double internalValue,
                                                    const std::string& displayUnits,
                                                    bool showUnits) const {
    if (closed<"formatInternalValue">(*this)) return {};
    try {
        return formatQuantity(internalValue,
                              displayUnits.empty() ? kLengthUnit : unitOf(displayUnits), showUnits);
    } catch (const ExpressionError& error) {
        fail(core::BadApiCallError,
             std::string("UnitsManager::formatInternalValue: ") + error.what());
        return {};
    }
}

}  // namespace host
