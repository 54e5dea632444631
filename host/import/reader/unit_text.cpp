#include "host/import/reader/unit_text.h"

#include <StepBasic_ConversionBasedUnit.hxx>
#include <StepBasic_DerivedUnit.hxx>
#include <StepBasic_DerivedUnitElement.hxx>
#include <StepBasic_SiUnit.hxx>
#include <TCollection_HAsciiString.hxx>

#include <array>
#include <charconv>
#include <cstddef>

namespace step {
namespace {

/// In the order of Open CASCADE's prefixes.
constexpr std::array kPrefixes = {"E", "P", "T", "G", "M", "k", "h", "da",
                                  "d", "c", "m", "u", "n", "p", "f", "a"};

std::string siText(const StepBasic_SiUnit& unit) {
    const std::string prefix =
        unit.HasPrefix() ? kPrefixes.at(static_cast<std::size_t>(unit.Prefix())) : "";
    switch (unit.Name()) {
        case StepBasic_sunMetre:
            return prefix + "m";
        case StepBasic_sunGram:
            return prefix + "g";
        default:
            return "another SI unit";
    }
}

std::string namedText(const Handle(StepBasic_NamedUnit) & unit) {
    if (const auto si = Handle(StepBasic_SiUnit)::DownCast(unit); !si.IsNull()) {
        return siText(*si);
    }
    const auto converted = Handle(StepBasic_ConversionBasedUnit)::DownCast(unit);
    return converted.IsNull() || converted->Name().IsNull() ? "an unknown unit"
                                                            : converted->Name()->ToCString();
}

std::string elementText(const StepBasic_DerivedUnitElement& element) {
    const std::string name = namedText(element.Unit());
    return element.Exponent() == 1 ? name : name + "^" + numberText(element.Exponent());
}

}  // namespace

std::string unitText(const StepBasic_Unit& unit) {
    if (!unit.NamedUnit().IsNull()) {
        return namedText(unit.NamedUnit());
    }
    const Handle(StepBasic_DerivedUnit) derived = unit.DerivedUnit();
    std::string text;
    for (int number = 1;
         !derived.IsNull() && !derived->Elements().IsNull() && number <= derived->NbElements();
         ++number) {
        if (const auto element = derived->ElementsValue(number); !element.IsNull()) {
            text += (text.empty() ? "" : " ") + elementText(*element);
        }
    }
    return text;
}

std::string numberText(double value) {
    std::array<char, 32> digits = {};
    const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    return {digits.data(), result.ptr};
}

}  // namespace step
