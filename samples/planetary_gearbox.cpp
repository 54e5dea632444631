#include "samples/product.h"
#include "samples/samples.h"

#include <cmath>
#include <cstddef>
#include <numbers>

namespace samples {
namespace {

const Material kSteel = {"Ocel C45", 7850};
const Material kBearingSteel = {"Ložisková ocel 100Cr6", 7810};
const Material kAluminium = {"Aluminium 6061", 2700};
const Material kBrass = {"Mosaz CW614N", 8470};

// Ring, planet and sun have 27, 9 and 9 teeth: three planets fit, 120 degrees apart.
constexpr double kModule = 1.25;
constexpr int kRingTeeth = 27;
constexpr int kPlanetTeeth = 9;
constexpr double kPlanetDistance = 11.25;  // (9 + 9) / 2 * 1.25 mm

Point2 around(double radius, double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return {radius * std::cos(angle), radius * std::sin(angle)};
}

Placement at(double x, double y, double z) { return {{x, y, z}}; }

/// On a circle around z, turned along with the angle.
Placement onCircle(double radius, double degrees, double z) {
    const Point2 point = around(radius, degrees);
    const Point2 ahead = around(1, degrees);
    return {{point.x, point.y, z}, {0, 0, 1}, {ahead.x, ahead.y, 0}};
}

std::vector<Contour> holesOnCircle(double holeRadius, double radius, int count, double centreHole) {
    std::vector<Contour> holes = {circle(centreHole)};
    for (int hole = 0; hole < count; ++hole) {
        holes.push_back(circle(holeRadius, around(radius, 45 + 360.0 * hole / count)));
    }
    return holes;
}

std::vector<Use> onCircleUses(const std::string& key, int count, double radius, double first,
                              double z) {
    std::vector<Use> uses;
    uses.reserve(static_cast<std::size_t>(count));
    for (int use = 0; use < count; ++use) {
        uses.push_back({key, onCircle(radius, first + 360.0 * use / count, z)});
    }
    return uses;
}

std::vector<Product> parts() {
    const Solid screw = {{{circle(2.75), 3}, {circle(1.5), 10}}, {}};
    return {
        {"flange",
         "PG42-101",
         "Vstupní příruba",
         "NEMA 17",
         kAluminium,
         Solid{{{rectangle(42, 42), 6}}, holesOnCircle(1.6, 18.5, 4, 11)},
         {}},
        {"ring",
         "PG42-102",
         "Ozubený věnec",
         "z 27, m 1.25",
         kSteel,
         Solid{{{circle(21), 24}}, {teeth(kRingTeeth, kModule, -1)}},
         {}},
        {"cover",
         "PG42-103",
         "Výstupní příruba",
         "",
         kAluminium,
         Solid{{{circle(21), 4}, {circle(14), 5}}, {circle(8)}},
         {}},
        {"screw", "ISO 4762 M3x10", "Socket head screw M3x10", "A2-70", kSteel, screw, {}},
        {"šroub", "ISO 4762 M3x10", "Šroub s válcovou hlavou M3x10", "A2-70", kSteel, screw, {}},
        {"carrier", "PG42-201", "Unašeč", "", kSteel, Solid{{{circle(15.5), 3}}, {circle(3)}}, {}},
        {"planet",
         "PG42-211",
         "Planet gear",
         "z 9, m 1.25",
         kSteel,
         Solid{{{teeth(kPlanetTeeth, kModule), 8}}, {circle(2.5)}},
         {}},
        {"pin",
         "PG42-212",
         "Čep planety",
         "h6, kaleno",
         kBearingSteel,
         Solid{{{circle(1.5), 11}}, {}},
         {}},
        {"needles",
         "K3x5x7",
         "針状ころ軸受 K3x5x7",
         "",
         kBearingSteel,
         Solid{{{circle(2.5), 7}}, {circle(1.5)}},
         {}},
        {"sun",
         "PG42-220",
         "Centrální kolo",
         "z 9, m 1.25",
         kSteel,
         Solid{{{teeth(kPlanetTeeth, kModule), 8}}, {circle(2.5)}},
         {}},
        {"shaft",
         "PG42-301",
         "Výstupní hřídel",
         "",
         kSteel,
         Solid{{{circle(4), 12}, {circle(3.5), 20}}, {}},
         {}},
        {"bearing",
         "688-2Z",
         "玉軸受 688-2Z",
         "8x16x5",
         kBearingSteel,
         Solid{{{circle(8), 5}}, {circle(4)}},
         {}},
        {"spacer",
         "PG42-302",
         "Distanční kroužek",
         "",
         kBrass,
         Solid{{{circle(5), 2}}, {circle(4)}},
         {}},
        {"retainer",
         "DIN 471-8",
         "Retaining ring 8x0.8",
         "",
         std::nullopt,
         Solid{{{circle(5.2), 0.8}}, {circle(3.8)}},
         {}},
    };
}

Product housing() {
    Product product{"housing", "PG42-100", "Skříň", "", {}, {}, {}};
    product.uses = {{"flange", {}}, {"ring", at(0, 0, 6)}, {"cover", at(0, 0, 30)}};
    for (const Use& use : onCircleUses("screw", 4, 18.5, 45, 3)) {
        product.uses.push_back(use);
    }
    return product;
}

Product planet() {
    Product product{"planetAssembly", "PG42-210", "Planet", "", {}, {}, {}};
    product.uses = {{"planet", {}}, {"pin", at(0, 0, -3)}, {"needles", at(0, 0, 0.5)}};
    return product;
}

Product stage() {
    Product product{"stage", "PG42-200", "Planetový stupeň", "i = 4", {}, {}, {}};
    product.uses = {{"carrier", {}}, {"sun", at(0, 0, 3)}};
    for (const Use& use : onCircleUses("planetAssembly", 3, kPlanetDistance, 0, 3)) {
        product.uses.push_back(use);
    }
    return product;
}

Product output() {
    Product product{"output", "PG42-300", "Výstup", "", {}, {}, {}};
    product.uses = {{"shaft", {}},
                    {"bearing", {}},
                    {"spacer", at(0, 0, 5)},
                    {"bearing", at(0, 0, 7)},
                    {"retainer", at(0, 0, 12)},
                    {"screw", {{0, 0, 34}, {0, 0, -1}, {1, 0, 0}}}};
    return product;
}

Product gearbox() {
    Product product{"gearbox", "PG42-000", "Planetary gearbox PG-42", "i = 16", {}, {}, {}};
    product.uses = {
        {"housing", {}},          {"stage", at(0, 0, 7)},      {"stage", at(0, 0, 19)},
        {"output", at(0, 0, 30)}, {"screw", at(-18.5, 0, 34)}, {"šroub", at(18.5, 0, 34)}};
    return product;
}

}  // namespace

std::string planetaryGearbox() {
    std::vector<Product> products = parts();
    for (const Product& product : {housing(), planet(), stage(), output(), gearbox()}) {
        products.push_back(product);
    }
    return stepFile("Planetary gearbox PG-42", products);
}

}  // namespace samples
