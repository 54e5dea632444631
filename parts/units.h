#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace parts {

/// What a number measures; numbers of `None`, such as quantities, have no unit.
enum class Dimension { None, Length, Area, Volume, Mass, Density };

/// A unit, and what the host's value (cm, cm2, cm3, kg, kg/cm3) is to be multiplied by.
struct Unit {
    const char* name = "";  ///< as it is shown, such as "cm²"
    Dimension dimension = Dimension::None;
    double factor = 1;
};

/// The unit of this name: "cm²", "cm2" and "cm^2" are the same. Null for an unknown one.
const Unit* findUnit(std::string_view name);

/// The names of all units of a dimension, the usual one first.
std::vector<std::string> unitNames(Dimension dimension);

/// The unit of each dimension in a list.
struct Units {
    const Unit* length = findUnit("mm");
    const Unit* area = findUnit("cm²");
    const Unit* volume = findUnit("cm³");
    const Unit* mass = findUnit("kg");
    const Unit* density = findUnit("kg/m³");

    /// The unit for a dimension; null for `None`.
    [[nodiscard]] const Unit* of(Dimension dimension) const;

    /// Makes a unit that of its dimension. Throws a `RequestError` for an unknown name.
    void choose(std::string_view name);
};

}  // namespace parts
