#include "samples/samples.h"

#include "tests/host/import/drafts.h"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <iterator>
#include <numbers>

namespace {

using host::DesignData;
using std::numbers::pi;

std::string keptFile(const std::string& name) { return std::string(SAMPLES_FOLDER) + "/" + name; }

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// A line for each component: part number, name, description, material.
std::string components(const DesignData& design) {
    std::string text;
    for (const host::ComponentData& one : design.components) {
        text += one.partNumber + " | " + one.name + " | " + one.description + " | " +
                one.material->name + "\n";
    }
    return text;
}

double volumeOf(const DesignData& design, const std::string& partNumber) {
    for (const host::ComponentData& one : design.components) {
        if (one.partNumber == partNumber) {
            return one.geometry->volume();
        }
    }
    return 0;
}

TEST(Samples, TheKeptFilesAreWhatTheGeneratorMakes) {
    const std::vector<samples::Sample> made = samples::allSamples();

    ASSERT_EQ(made.size(), 2U);
    EXPECT_TRUE(bytesOf(keptFile(made[0].file)) == made[0].text) << made[0].file;
    EXPECT_TRUE(bytesOf(keptFile(made[1].file)) == made[1].text) << made[1].file;
}

TEST(Samples, TheGearboxNestsItsAssemblies) {
    const std::string stage = R"(
    Unašeč:1
    Centrální kolo:1
    Planet:1
      Planet gear:1
      Čep planety:1
      針状ころ軸受 K3x5x7:1
    Planet:2
      Planet gear:1
      Čep planety:1
      針状ころ軸受 K3x5x7:1
    Planet:3
      Planet gear:1
      Čep planety:1
      針状ころ軸受 K3x5x7:1)";

    EXPECT_EQ(drafts::tree(drafts::import(keptFile("planetary-gearbox.step"))),
              R"(Planetary gearbox PG-42
  Skříň:1
    Vstupní příruba:1
    Ozubený věnec:1
    Výstupní příruba:1
    Socket head screw M3x10:1
    Socket head screw M3x10:2
    Socket head screw M3x10:3
    Socket head screw M3x10:4
  Planetový stupeň:1)" +
                  stage + R"(
  Planetový stupeň:2)" +
                  stage + R"(
  Výstup:1
    Výstupní hřídel:1
    玉軸受 688-2Z:1
    Distanční kroužek:1
    玉軸受 688-2Z:2
    Retaining ring 8x0.8:1
    Socket head screw M3x10:5
  Socket head screw M3x10:6
  Šroub s válcovou hlavou M3x10:1
)");
}

TEST(Samples, TheGearboxHasOneNumberForTwoScrews) {
    EXPECT_EQ(components(drafts::import(keptFile("planetary-gearbox.step"))),
              R"(PG42-000 | Planetary gearbox PG-42 | i = 16 | Steel
PG42-100 | Skříň |  | Steel
PG42-101 | Vstupní příruba | NEMA 17 | Aluminium 6061
PG42-102 | Ozubený věnec | z 27, m 1.25 | Ocel C45
PG42-103 | Výstupní příruba |  | Aluminium 6061
ISO 4762 M3x10 | Socket head screw M3x10 | A2-70 | Ocel C45
PG42-200 | Planetový stupeň | i = 4 | Steel
PG42-201 | Unašeč |  | Ocel C45
PG42-220 | Centrální kolo | z 9, m 1.25 | Ocel C45
PG42-210 | Planet |  | Steel
PG42-211 | Planet gear | z 9, m 1.25 | Ocel C45
PG42-212 | Čep planety | h6, kaleno | Ložisková ocel 100Cr6
K3x5x7 | 針状ころ軸受 K3x5x7 |  | Ložisková ocel 100Cr6
PG42-300 | Výstup |  | Steel
PG42-301 | Výstupní hřídel |  | Ocel C45
688-2Z | 玉軸受 688-2Z | 8x16x5 | Ložisková ocel 100Cr6
PG42-302 | Distanční kroužek |  | Mosaz CW614N
DIN 471-8 | Retaining ring 8x0.8 |  | Steel
ISO 4762 M3x10 | Šroub s válcovou hlavou M3x10 | A2-70 | Ocel C45
)");
}

TEST(Samples, TheGearboxHasTheVolumesThatWereDrawn) {
    const DesignData design = drafts::import(keptFile("planetary-gearbox.step"));

    // In cm3; head and shank of the screw, two steps of the shaft, the needle bearing's ring.
    EXPECT_NEAR(volumeOf(design, "ISO 4762 M3x10"), pi * (0.275 * 0.275 * 0.3 + 0.15 * 0.15 * 1.0),
                1e-8);
    EXPECT_NEAR(volumeOf(design, "PG42-301"), pi * (0.4 * 0.4 * 1.2 + 0.35 * 0.35 * 2.0), 1e-8);
    EXPECT_NEAR(volumeOf(design, "K3x5x7"), pi * (0.25 * 0.25 - 0.15 * 0.15) * 0.7, 1e-8);
    // The flange: a square of 4.2 cm, 0.6 cm thick, with four holes of 3.2 mm and one of 22 mm.
    EXPECT_NEAR(volumeOf(design, "PG42-101"),
                0.6 * (4.2 * 4.2 - pi * (4 * 0.16 * 0.16 + 1.1 * 1.1)), 1e-8);
}

TEST(Samples, TheSliderIsFlat) {
    EXPECT_EQ(drafts::tree(drafts::import(keptFile("camera-slider.step"))),
              R"(Camera slider CS-600
  Rail 600:1
  End plate:1
  End plate:2
  Carriage plate:1
  Stepper motor:1
  V-wheel 24:1
  Screw M5x25:1
  Nut M5:1
  Rubber foot; soft:1
  V-wheel 24:2
  Screw M5x25:2
  Nut M5:2
  Rubber foot; soft:2
  V-wheel 24:3
  Screw M5x25:3
  Nut M5:3
  Rubber foot; soft:3
  V-wheel 24:4
  Screw M5x25:4
  Nut M5:4
  Rubber foot; soft:4
)");
}

TEST(Samples, TheSliderHasTheVolumesThatWereDrawn) {
    const DesignData design = drafts::import(keptFile("camera-slider.step"));

    EXPECT_NEAR(volumeOf(design, "CS-101"), 60 * (4 * 2 - pi * 2 * 0.21 * 0.21), 1e-7);
    // A hexagon of 8 mm across its flats has an area of 0.8 * 0.8 * sqrt(3) / 2.
    EXPECT_NEAR(volumeOf(design, "ISO 4032 M5"),
                0.47 * (0.64 * std::sqrt(3) / 2 - pi * 0.25 * 0.25), 1e-8);
    EXPECT_NEAR(volumeOf(design, "NEMA17-40"),
                4.23 * 4.23 * 4 + pi * (1.1 * 1.1 * 0.2 + 0.25 * 0.25 * 2.2), 1e-8);
}

}  // namespace
