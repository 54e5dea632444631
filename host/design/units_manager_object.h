#pragma once

#include "host/base/object.h"

#include <Core/UnitsManager.h>

#include <string>

namespace host {

/// The units of a product. Each document is shown in mm here, whatever its file was written in.
class UnitsManagerObject final : public Object<core::UnitsManager> {
public:
    [[nodiscard]] std::string defaultLengthUnits() const override;
    [[nodiscard]] std::string internalUnits() const override;
    double evaluateExpression(const std::string& expression,
                              const std::string& units) const override;
    bool isValidExpression(const std::string& expression, const std::string& units) const override;
    double convert(double valueInInputUnits, const std::string& inputUnits,
                   const std::string& outputUnits) const override;
    std::string formatInternalValue(double internalValue, const std::string& displayUnits,
                                    bool showUnits) const override;
};

}  // namespace host
