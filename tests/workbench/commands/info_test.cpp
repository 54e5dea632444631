#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace fs = std::filesystem;
using test_support::isOneLine;
using test_support::ProgramResult;
using test_support::text;
using test_support::writeFile;

class InfoCommand : public test_support::Workbench {
protected:
    /// The line on stderr for a file that is no design.
    static std::string refusalOf(const fs::path& file) {
        const ProgramResult result = run({"info", host::toUtf8(file)});
        EXPECT_EQ(result.status, 1);
        return result.errors;
    }

    /// The line for a file of this name and content.
    [[nodiscard]] std::string refusalOf(const std::string& name, const std::string& content) const {
        writeFile(folder.path() / name, content);
        return refusalOf(folder.path() / name);
    }
};

TEST_F(InfoCommand, ABrokenDesignFileIsRefusedWithALine) {
    const std::string line = refusalOf("broken.design.json", "{\"components\": [");

    EXPECT_TRUE(isOneLine(line)) << line;
    EXPECT_NE(line.find("broken.design.json"), std::string::npos) << line;
}

TEST_F(InfoCommand, AnEmptyFileIsRefusedWithALine) {
    EXPECT_PRED1(isOneLine, refusalOf("empty.step", ""));
}

TEST_F(InfoCommand, AFolderIsRefusedWithALine) {
    EXPECT_PRED1(isOneLine, refusalOf(folder.path()));
}

TEST_F(InfoCommand, CountsWhatAFileHolds) {
    const ProgramResult result = run({"info", design(R"(
        Frame  material=Aluminium:0.0027 box=10x10x1
          Leg  material=Steel:0.00785 box=1x1x40
          Leg
        Frame
        Bolt  material=Steel:0.00785 box=1x1x1)")});

    EXPECT_EQ(result.status, 0) << result.errors;
    // Frame, its two legs, both again, and the bolt.
    EXPECT_EQ(result.output, text(R"(
        sample

        Components   4
          with shape 3
        Occurrences  7
        Levels       2
        Length unit  unknown
        Bodies       7
        Area         1134.00 cm²
        Volume       361.000 cm³
        Mass         1.804 kg
        Box          100.0 x 100.0 x 400.0 mm

        Material   Density [kg/m³]  Components
        ─────────  ───────────────  ──────────
        Aluminium           2700.0           1
        Steel               7850.0           2
        )") + "\n");
}

TEST_F(InfoCommand, MarksAMaterialThatIsAssumed) {
    host::DesignData data = host::parseOutline("Bolt  material=Steel:0.00785 box=1x1x1");
    data.components[1].material->nameAssumed = true;
    data.components[1].material->densityAssumed = true;
    const std::string file = save(data, "bolt");

    const ProgramResult result = run({"info", file});

    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.output.find("Steel (assumed)"), std::string::npos) << result.output;
    EXPECT_EQ(result.errors,
              "warning: " + file +
                  ": 1 of 1 part has no material: Steel assumed (--material NAME=DENSITY to "
                  "change)\n");
}

TEST_F(InfoCommand, UsesTheMaterialThatIsNamedForPartsWithoutOne) {
    host::DesignData data = host::parseOutline(R"(
        Bolt  material=Steel:0.00785 box=10x10x10
        Rail  material=Brass:0.0085 box=10x10x10)");
    data.components[1].material->nameAssumed = true;
    data.components[1].material->densityAssumed = true;
    const std::string file = save(data, "bolt");

    const ProgramResult result = run({"info", file, "--material", "Aluminium=2700", "--strict"});

    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.errors, "");
    // A litre of each.
    EXPECT_NE(result.output.find("Mass         11.200 kg"), std::string::npos) << result.output;
    EXPECT_NE(result.output.find("Aluminium"), std::string::npos) << result.output;
}

TEST_F(InfoCommand, AMaterialWithoutADensityIsRefused) {
    EXPECT_EQ(run({"info", design("Bolt"), "--material", "Wood"}).errors,
              "tarnix-workbench: --material Wood: expected NAME=DENSITY, with a density of 1 to "
              "25000 kg/m3\n");
    EXPECT_EQ(run({"info", design("Bolt"), "--material", "Wood=0"}).status, 2);
}

TEST_F(InfoCommand, MeasuresALonePart) {
    const ProgramResult result = run({"info", lonePart()});

    // 2 x (50 + 20 + 10) cm2, 100 cm3, 0.85 kg.
    EXPECT_NE(result.output.find("Bodies       1\n"
                                 "Area         160.00 cm\u00B2\n"
                                 "Volume       100.000 cm\u00B3\n"
                                 "Mass         0.850 kg\n"
                                 "Box          100.0 x 50.0 x 20.0 mm\n"),
              std::string::npos)
        << result.output;
}
