#include "host/import/step_import.h"

#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <memory>

/// What counts as the bodies of a part.
namespace {

using drafts::damage;
using drafts::labelOf;
using samples::Product;
using samples::rectangle;
using samples::Solid;

Product part(const std::string& name, Solid solid) {
    return {.key = name,
            .id = name,
            .name = name,
            .description = "",
            .material = {},
            .solid = std::move(solid),
            .uses = {}};
}

/// A plate of 10 x 20 x 5 mm around the origin, and a cube of 10 mm, 50 mm along x.
std::string plateAndCube() {
    return samples::stepFile("x", {part("Plate", Solid{{{rectangle(10, 20), 5}}, {}}),
                                   part("Cube", Solid{{{rectangle(10, 10, {50, 0}), 10}}, {}})});
}

/// Puts a further item into the shape of the plate.
void addToPlate(std::string& text, const std::string& item) {
    const std::size_t shape = text.find("=ADVANCED_BREP_SHAPE_REPRESENTATION('Plate',(");
    damage(text, "),", "#", "," + item + "),#", shape);
}

class StepBodies : public testing::Test {
protected:
    /// Of the plate, which is the first of two roots.
    std::shared_ptr<host::Geometry> plateIn(const std::string& text) {
        return drafts::import(folder.write("Design.step", text)).components.at(1).geometry;
    }

    test_support::TemporaryFolder folder;
};

TEST_F(StepBodies, APartOfSeveralSolidsIsOneComponentThatHasThemAll) {
    std::string text = plateAndCube();
    addToPlate(text, labelOf(text, "MANIFOLD_SOLID_BREP", 1));

    const std::shared_ptr<host::Geometry> both = plateIn(text);

    EXPECT_EQ(both->bodies(), 2U);
    EXPECT_NEAR(both->volume(), 2, 1e-9);  // 1 x 2 x 0.5 and 1 x 1 x 1
    EXPECT_NEAR(both->area(), 13, 1e-9);   // 2 x (2 + 0.5 + 1) and 6
}

TEST_F(StepBodies, ASurfaceBesideASolidCountsWithItsAreaAndItsBox) {
    std::string text = plateAndCube();
    const std::string cube = labelOf(text, "MANIFOLD_SOLID_BREP", 1);
    const std::string shell = labelOf(text, "CLOSED_SHELL", 1);
    damage(text, cube + "=MANIFOLD_SOLID_BREP(", ")",
           cube + "=SHELL_BASED_SURFACE_MODEL('',(" + shell + "))");
    addToPlate(text, cube);

    const std::shared_ptr<host::Geometry> both = plateIn(text);

    EXPECT_EQ(both->bodies(), 2U);
    EXPECT_NEAR(both->area(), 13, 1e-9);
    EXPECT_NEAR(both->volume(), 1, 1e-9);  // a surface encloses nothing
    EXPECT_NEAR(both->box({})->max[0], 5.5, 1e-7);
}

TEST_F(StepBodies, ASinglePartHasOneBody) { EXPECT_EQ(plateIn(plateAndCube())->bodies(), 1U); }

}  // namespace
