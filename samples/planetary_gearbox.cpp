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

void append(std::vector<Use>& uses, const std::vector<Use>& more) {
    uses.insert(uses.end(), more.begin(), more.end());
}

std::vector<Product> parts() {
    const Solid screw = {{{circle(2.75), 3}, {circle(1.5), 10}}, {}};
    return {
        {.key = "flange",
         .id = "PG42-101",
         .name = "Vstupní příruba",
         .description = "NEMA 17",
         .material = kAluminium,
         .solid = Solid{{{rectangle(42, 42), 6}}, holesOnCircle(1.6, 18.5, 4, 11)}},
        {.key = "ring",
         .id = "PG42-102",
         .name = "Ozubený věnec",
         .description = "z 27, m 1.25",
         .material = kSteel,
         .solid = Solid{{{circle(21), 24}}, {teeth(kRingTeeth, kModule, -1)}}},
        {.key = "cover",
         .id = "PG42-103",
         .name = "Výstupní příruba",
         .material = kAluminium,
         .solid = Solid{{{circle(21), 4}, {circle(14), 5}}, {circle(8)}}},
        {.key = "screw",
         .id = "ISO 4762 M3x10",
         .name = "Socket head screw M3x10",
         .description = "A2-70",
         .material = kSteel,
         .solid = screw},
        {.key = "šroub",
         .id = "ISO 4762 M3x10",
         .name = "Šroub s válcovou hlavou M3x10",
         .description = "A2-70",
         .material = kSteel,
         .solid = screw},
        {.key = "carrier",
         .id = "PG42-201",
         .name = "Unašeč",
         .material = kSteel,
         .solid = Solid{{{circle(15.5), 3}}, {circle(3)}}},
        {.key = "planet",
         .id = "PG42-211",
         .name = "Planet gear",
         .description = "z 9, m 1.25",
         .material = kSteel,
         .solid = Solid{{{teeth(kPlanetTeeth, kModule), 8}}, {circle(2.5)}}},
        {.key = "pin",
         .id = "PG42-212",
         .name = "Čep planety",
         .description = "h6, kaleno",
         .material = kBearingSteel,
         .solid = Solid{{{circle(1.5), 11}}, {}}},
        {.key = "needles",
         .id = "K3x5x7",
         .name = "針状ころ軸受 K3x5x7",
         .material = kBearingSteel,
         .solid = Solid{{{circle(2.5), 7}}, {circle(1.5)}}},
        {.key = "sun",
         .id = "PG42-220",
         .name = "Centrální kolo",
         .description = "z 9, m 1.25",
         .material = kSteel,
         .solid = Solid{{{teeth(kPlanetTeeth, kModule), 8}}, {circle(2.5)}}},
        {.key = "shaft",
         .id = "PG42-301",
         .name = "Výstupní hřídel",
         .material = kSteel,
         .solid = Solid{{{circle(4), 12}, {circle(3.5), 20}}, {}}},
        {.key = "bearing",
         .id = "688-2Z",
         .name = "玉軸受 688-2Z",
         .description = "8x16x5",
         .material = kBearingSteel,
         .solid = Solid{{{circle(8), 5}}, {circle(4)}}},
        {.key = "spacer",
         .id = "PG42-302",
         .name = "Distanční kroužek",
         .material = kBrass,
         .solid = Solid{{{circle(5), 2}}, {circle(4)}}},
        {.key = "retainer",
         .id = "DIN 471-8",
         .name = "Retaining ring 8x0.8",
         .solid = Solid{{{circle(5.2), 0.8}}, {circle(3.8)}}},
    };
}

Product housing() {
    Product product{.key = "housing",
                    .id = "PG42-100",
                    .name = "Skříň",
                    .uses = {{"flange", {}}, {"ring", at(0, 0, 6)}, {"cover", at(0, 0, 30)}}};
    append(product.uses, onCircleUses("screw", 4, 18.5, 45, 3));
    return product;
}

Product planet() {
    return {.key = "planetAssembly",
            .id = "PG42-210",
            .name = "Planet",
            .uses = {{"planet", {}}, {"pin", at(0, 0, -3)}, {"needles", at(0, 0, 0.5)}}};
}

Product stage() {
    Product product{.key = "stage",
                    .id = "PG42-200",
                    .name = "Planetový stupeň",
                    .description = "i = 4",
                    .uses = {{"carrier", {}}, {"sun", at(0, 0, 3)}}};
    append(product.uses, onCircleUses("planetAssembly", 3, kPlanetDistance, 0, 3));
    return product;
}

Product output() {
    return {.key = "output",
            .id = "PG42-300",
            .name = "Výstup",
            .uses = {{"shaft", {}},
                     {"bearing", {}},
                     {"spacer", at(0, 0, 5)},
                     {"bearing", at(0, 0, 7)},
                     {"retainer", at(0, 0, 12)},
                     {"screw", {{0, 0, 34}, {0, 0, -1}, {1, 0, 0}}}}};
}

Product gearbox() {
    return {.key = "gearbox",
            .id = "PG42-000",
            .name = "Planetary gearbox PG-42",
            .description = "i = 16",
            .uses = {{"housing", {}},
                     {"stage", at(0, 0, 7)},
                     {"stage", at(0, 0, 19)},
                     {"output", at(0, 0, 30)},
                     {"screw", at(-18.5, 0, 34)},
                     {"šroub", at(18.5, 0, 34)}}};
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
