#include "host/import/step_import.h"

#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

using drafts::damage;
using drafts::labelOf;
using drafts::lines;
using drafts::withEntities;
using host::MaterialData;
using samples::rectangle;
using samples::Solid;

std::string plateOf(const std::optional<samples::Material>& material) {
    return samples::stepFile("x", {{.key = "plate",
                                    .id = "P",
                                    .name = "Plate",
                                    .description = "",
                                    .material = material,
                                    .solid = Solid{{{rectangle(10, 20), 5}}, {}},
                                    .uses = {}}});
}

/// A plate of bronze whose density of 860 has a unit of these exponents of kg and m.
std::string bronzePlate(const std::string& mass, const std::string& length) {
    std::string text = plateOf(samples::Material{"Bronze", 860});
    damage(text, ",1.)", ";", "," + mass + ");", text.find("=DERIVED_UNIT_ELEMENT("));
    damage(text, ",-3.)", ";", "," + length + ");", text.find("=DERIVED_UNIT_ELEMENT("));
    return text;
}

class StepMaterials : public testing::Test {
protected:
    MaterialData materialIn(const std::string& text) {
        const std::string file = folder.write("Design.step", text);
        path = file + ": ";
        return host::importStep(file, {}, {}, warnings).components.at(0).material.value();
    }

    test_support::TemporaryFolder folder;
    std::string path;
    std::vector<host::ReadingWarning> warnings;
};

TEST_F(StepMaterials, ADensityWhoseUnitIsNoMassByVolumeIsAssumedAndReported) {
    EXPECT_EQ(materialIn(bronzePlate("3.", "2.")),
              (MaterialData{"Bronze", 0.00785, /*nameAssumed=*/false, /*densityAssumed=*/true}));
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].line(),
              path +
                  "states 860 kg^3 m^2 as the density of \"Plate\", which is no mass by volume; "
                  "a default density is assumed");
    EXPECT_EQ(warnings[0].code, "density-unit");
    EXPECT_EQ(warnings[0].value, 860);
    EXPECT_EQ(warnings[0].unit, "kg^3 m^2");
    EXPECT_EQ(warnings[0].component, "Plate");
}

TEST_F(StepMaterials, AMassByAreaIsNoDensity) {
    EXPECT_TRUE(materialIn(bronzePlate("1.", "-2.")).densityAssumed);
    EXPECT_EQ(warnings.size(), 1U);
}

TEST_F(StepMaterials, AMassTimesAVolumeIsNoDensity) {
    EXPECT_TRUE(materialIn(bronzePlate("1.", "3.")).densityAssumed);
    EXPECT_EQ(warnings.size(), 1U);
}

TEST_F(StepMaterials, ADensityThatIsNoNumberAboveZeroIsAssumedAndReported) {
    EXPECT_TRUE(materialIn(plateOf(samples::Material{"Void", 0})).densityAssumed);
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].line(),
              path +
                  "states 0 kg m^-3 as the density of \"Plate\", which is not above 0; a default "
                  "density is assumed");
    EXPECT_EQ(warnings[0].code, "density-unit");
}

TEST_F(StepMaterials, ADensityThatNoMaterialHasIsTakenAndReported) {
    EXPECT_EQ(materialIn(plateOf(samples::Material{"Bronze", 860000})),
              (MaterialData{"Bronze", 0.86}));
    ASSERT_EQ(warnings.size(), 1U);
    EXPECT_EQ(warnings[0].line(),
              path +
                  "states 860000 kg m^-3 as the density of \"Plate\", which is 860000 kg/m3; "
                  "materials have 1 to 25000");
    EXPECT_EQ(warnings[0].code, "density-range");
}

TEST_F(StepMaterials, TheLightestAndTheHeaviestMaterialAreNotReported) {
    EXPECT_DOUBLE_EQ(materialIn(plateOf(samples::Material{"Aerogel", 1})).density, 1e-6);
    EXPECT_DOUBLE_EQ(materialIn(plateOf(samples::Material{"Osmium", 25000})).density, 0.025);
    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

TEST_F(StepMaterials, AProductTakesTheDensityOfTheMaterialItIsMadeFrom) {
    // As CATIA writes it: the material is a product, with a density of 0.297 lb/in3.
    const std::string text = plateOf({});
    const std::string inch =
        "#9010=(CONVERSION_BASED_UNIT('INCH',#9011)LENGTH_UNIT()"
        "NAMED_UNIT(#9013));\n"
        "#9011=LENGTH_MEASURE_WITH_UNIT(LENGTH_MEASURE(25.4),#9012);\n"
        "#9012=(LENGTH_UNIT()NAMED_UNIT(*)SI_UNIT(.MILLI.,.METRE.));\n"
        "#9013=DIMENSIONAL_EXPONENTS(1.,0.,0.,0.,0.,0.,0.);\n";
    const std::string pound =
        "#9020=(CONVERSION_BASED_UNIT('POUND',#9021)MASS_UNIT()"
        "NAMED_UNIT(#9023));\n"
        "#9021=MASS_MEASURE_WITH_UNIT(MASS_MEASURE(0.45359237),#9022);\n"
        "#9022=(MASS_UNIT()NAMED_UNIT(*)SI_UNIT(.KILO.,.GRAM.));\n"
        "#9023=DIMENSIONAL_EXPONENTS(0.,1.,0.,0.,0.,0.,0.);\n";
    const MaterialData material = materialIn(withEntities(
        text,
        "#9000=PRODUCT('S','STEEL','',(" + labelOf(text, "PRODUCT_CONTEXT") +
            "));\n#9001=PRODUCT_DEFINITION_FORMATION('','',#9000);\n"
            "#9002=PRODUCT_DEFINITION('','',#9001," +
            labelOf(text, "PRODUCT_DEFINITION_CONTEXT") +
            ");\n#9003=PROPERTY_DEFINITION('material property','density',#9002);\n"
            "#9004=REPRESENTATION('density',(#9006),#9014);\n"
            "#9005=PROPERTY_DEFINITION_REPRESENTATION(#9003,#9004);\n"
            "#9006=MEASURE_REPRESENTATION_ITEM('density',POSITIVE_RATIO_MEASURE(0.297),#9007);\n"
            "#9007=DERIVED_UNIT((#9008,#9009));\n"
            "#9008=DERIVED_UNIT_ELEMENT(#9020,1.);\n#9009=DERIVED_UNIT_ELEMENT(#9010,-3.);\n"
            "#9014=REPRESENTATION_CONTEXT('','');\n" +
            inch + pound + "#9030=MAKE_FROM_USAGE_OPTION('1','',''," +
            labelOf(text, "PRODUCT_DEFINITION") +
            ",#9002,1,'',#9031);\n#9031=MEASURE_WITH_UNIT(COUNT_MEASURE(1.),#9012);\n"));

    EXPECT_EQ(material.name, "STEEL");
    EXPECT_FALSE(material.densityAssumed);
    EXPECT_NEAR(material.density, 0.297 * 0.45359237 / 16.387064, 1e-12);
    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

}  // namespace
