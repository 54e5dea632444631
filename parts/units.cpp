#include "parts/units.h"

#include "parts/ascii.h"
#include "parts/request_error.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace parts {
namespace {

constexpr double kInch = 2.54;          // cm
constexpr double kFoot = 12 * kInch;    // cm
constexpr double kPound = 0.45359237;   // kg
constexpr double kOunce = kPound / 16;  // kg
constexpr double kCubicInch = kInch * kInch * kInch;

// The usual unit of a dimension comes first.
constexpr std::array kUnits = {
    Unit{.name = "mm", .dimension = Dimension::Length, .factor = 10},
    Unit{.name = "cm", .dimension = Dimension::Length, .factor = 1},
    Unit{.name = "m", .dimension = Dimension::Length, .factor = 0.01},
    Unit{.name = "in", .dimension = Dimension::Length, .factor = 1 / kInch},
    Unit{.name = "ft", .dimension = Dimension::Length, .factor = 1 / kFoot},
    Unit{.name = "cm²", .dimension = Dimension::Area, .factor = 1},
    Unit{.name = "mm²", .dimension = Dimension::Area, .factor = 100},
    Unit{.name = "m²", .dimension = Dimension::Area, .factor = 1e-4},
    Unit{.name = "in²", .dimension = Dimension::Area, .factor = 1 / (kInch * kInch)},
    Unit{.name = "ft²", .dimension = Dimension::Area, .factor = 1 / (kFoot * kFoot)},
    Unit{.name = "cm³", .dimension = Dimension::Volume, .factor = 1},
    Unit{.name = "mm³", .dimension = Dimension::Volume, .factor = 1000},
    Unit{.name = "m³", .dimension = Dimension::Volume, .factor = 1e-6},
    Unit{.name = "l", .dimension = Dimension::Volume, .factor = 1e-3},
    Unit{.name = "in³", .dimension = Dimension::Volume, .factor = 1 / kCubicInch},
    Unit{.name = "kg", .dimension = Dimension::Mass, .factor = 1},
    Unit{.name = "g", .dimension = Dimension::Mass, .factor = 1000},
    Unit{.name = "mg", .dimension = Dimension::Mass, .factor = 1e6},
    Unit{.name = "t", .dimension = Dimension::Mass, .factor = 1e-3},
    Unit{.name = "lb", .dimension = Dimension::Mass, .factor = 1 / kPound},
    Unit{.name = "oz", .dimension = Dimension::Mass, .factor = 1 / kOunce},
    Unit{.name = "kg/m³", .dimension = Dimension::Density, .factor = 1e6},
    Unit{.name = "g/cm³", .dimension = Dimension::Density, .factor = 1000},
    Unit{.name = "kg/cm³", .dimension = Dimension::Density, .factor = 1},
    Unit{.name = "lb/in³", .dimension = Dimension::Density, .factor = kCubicInch / kPound},
};

void replaceAll(std::string& text, std::string_view wanted, std::string_view replacement) {
    for (std::size_t at = 0; (at = text.find(wanted, at)) != std::string::npos;) {
        text.replace(at, wanted.size(), replacement);
        at += replacement.size();
    }
}

/// With the digits for the powers.
std::string plain(std::string_view name) {
    std::string result(name);
    replaceAll(result, "²", "2");
    replaceAll(result, "³", "3");
    replaceAll(result, "^", "");
    return result;
}

std::string allNames() {
    std::vector<std::string> names;
    for (const Unit& unit : kUnits) {
        names.push_back(plain(unit.name));
    }
    return withCommas(names);
}

}  // namespace

const Unit* findUnit(std::string_view name) {
    const std::string wanted = plain(name);
    const auto* const found =
        std::ranges::find_if(kUnits, [&](const Unit& unit) { return plain(unit.name) == wanted; });
    return found == kUnits.end() ? nullptr : found;
}

std::vector<std::string> unitNames(Dimension dimension) {
    std::vector<std::string> names;
    for (const Unit& unit : kUnits) {
        if (unit.dimension == dimension) {
            names.push_back(plain(unit.name));
        }
    }
    return names;
}

const Unit* Units::of(Dimension dimension) const {
    switch (dimension) {
        case Dimension::Length:
            return length;
        case Dimension::Area:
            return area;
        case Dimension::Volume:
            return volume;
        case Dimension::Mass:
            return mass;
        case Dimension::Density:
            return density;
        case Dimension::None:
            break;
    }
    return nullptr;
}

void Units::choose(std::string_view name) {
    const Unit* const unit = findUnit(name);
    if (unit == nullptr) {
        throw RequestError("\"" + std::string(name) + "\": no such unit; there are " + allNames());
    }
    for (const Unit** const place : {&length, &area, &volume, &mass, &density}) {
        if ((*place)->dimension == unit->dimension) {
            *place = unit;
        }
    }
}

}  // namespace parts
