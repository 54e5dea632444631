#include "host/import/step_import.h"

#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <utility>

/// What is warned of, and what is not.
namespace {

using drafts::damage;
using drafts::labelOf;
using drafts::lines;
using drafts::numberOf;
using drafts::withEntities;
using host::DesignData;
using samples::Product;
using samples::rectangle;
using samples::Solid;

/// A part with a plate of 10 x 20 x 5 mm.
Product part(const std::string& name) {
    return {.key = name,
            .id = name,
            .name = name,
            .description = "",
            .material = {},
            .solid = Solid{{{rectangle(10, 20), 5}}, {}},
            .uses = {}};
}

Product assembly(const std::string& name, std::vector<samples::Use> uses) {
    return {.key = name,
            .id = name,
            .name = name,
            .description = "",
            .material = {},
            .solid = {},
            .uses = std::move(uses)};
}

class StepWarnings : public testing::Test {
protected:
    DesignData importText(const std::string& text) {
        return host::importStep(folder.write("Design.step", text), {}, {}, warnings);
    }

    std::string at(const std::string& text) const {
        return folder.path().string() + "/Design.step: " + text;
    }

    test_support::TemporaryFolder folder;
    std::vector<host::ReadingWarning> warnings;
};

TEST_F(StepWarnings, NameThePartWithTheBrokenBodyAndNoOtherOfItsAssembly) {
    std::string text = samples::stepFile(
        "x", {part("Bar"), part("Plate"), assembly("Top", {{"Bar", {}}, {"Plate", {}}})});
    const std::string body = labelOf(text, "MANIFOLD_SOLID_BREP", 1);
    damage(text, body + "=MANIFOLD_SOLID_BREP('',#", ")", body + "=MANIFOLD_SOLID_BREP('',$)");

    importText(text);

    ASSERT_EQ(warnings.size(), 2U);
    EXPECT_EQ(warnings[1].line(), at("has 1 body that cannot be built whole, first " + body +
                                     " of \"Plate\"; areas and masses are without them"));
}

TEST_F(StepWarnings, SayNothingOfAFileThatAPartWasModelledIn) {
    const std::string text = samples::stepFile("x", {part("Plate")});
    folder.write("native.prt", drafts::step(drafts::product(10, "N", "Native")));

    const DesignData design = importText(withEntities(
        text,
        drafts::reference(9000, numberOf(labelOf(text, "PRODUCT_DEFINITION")), "native.prt") +
            drafts::reference(9100, numberOf(labelOf(text, "PRODUCT_DEFINITION")), "gone.prt")));

    EXPECT_EQ(drafts::tree(design), "Plate\n");
    EXPECT_NEAR(design.components[0].geometry->volume(), 1, 1e-9);
    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

TEST_F(StepWarnings, SayNothingOfADocumentOfAnAssembly) {
    const std::string text =
        samples::stepFile("x", {part("Plate"), assembly("Top", {{"Plate", {}}})});

    const DesignData design = importText(withEntities(
        text,
        drafts::reference(9000, numberOf(labelOf(text, "PRODUCT_DEFINITION", 1)), "gone.prt")));

    EXPECT_EQ(drafts::tree(design),
              "Top\n"
              "  Plate:1\n");
    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

TEST_F(StepWarnings, SayNothingOfAFileWithoutAName) {
    importText(drafts::step(drafts::product(10, "A", "Top") + drafts::reference(20, 10, "")));

    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

TEST_F(StepWarnings, SayNothingOfFaultsThatTheListDoesNotNeed) {
    // The shape's context is not what a property can be of.
    const std::string text = samples::stepFile("x", {part("Plate")});
    const std::string representation = labelOf(text, "ADVANCED_BREP_SHAPE_REPRESENTATION");

    importText(withEntities(text, "#9000=PROPERTY_DEFINITION('pmi validation property',''," +
                                      labelOf(text, "APPLICATION_CONTEXT") +
                                      ");\n#9001=PROPERTY_DEFINITION_REPRESENTATION(#9000," +
                                      representation + ");\n"));

    EXPECT_EQ(lines(warnings), std::vector<std::string>());
}

}  // namespace
