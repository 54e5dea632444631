#include "host/import/step_import.h"

#include "samples/samples.h"
#include "tests/host/import/drafts.h"
#include "tests/host/import/drawn_parts.h"
#include "tests/host/import/step_text_edits.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sched.h>

#include <memory>
#include <vector>

/// What counts as the bodies of a part.
namespace {

using drafts::damage;
using drafts::labelOf;
using drafts::part;
using drafts::plate;

/// A plate of 10 x 20 x 5 mm around the origin, and a cube of 10 mm, 50 mm along x.
std::string plateAndCube() {
    return samples::stepFile(
        "x", {part("Plate", plate(10, 20, 5)), part("Cube", plate(10, 10, 10, 50))});
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

/// Areas and volumes of all components that have a shape.
std::vector<double> measuresOf(const std::string& file) {
    std::vector<double> all;
    for (const host::ComponentData& component : drafts::import(file).components) {
        if (component.geometry != nullptr) {
            all.push_back(component.geometry->area());
            all.push_back(component.geometry->volume());
        }
    }
    return all;
}

TEST_F(StepBodies, AllProcessorsMeasureTheSameAsOne) {
    const std::string file = folder.write("gearbox.step", samples::planetaryGearbox());
    cpu_set_t all;
    ASSERT_EQ(::sched_getaffinity(0, sizeof all, &all), 0);
    cpu_set_t one;
    CPU_ZERO(&one);
    CPU_SET(::sched_getcpu(), &one);

    const std::vector<double> together = measuresOf(file);
    ASSERT_EQ(::sched_setaffinity(0, sizeof one, &one), 0);
    const std::vector<double> inSequence = measuresOf(file);
    ::sched_setaffinity(0, sizeof all, &all);

    EXPECT_EQ(together, inSequence);  // bit for bit
    EXPECT_EQ(together.size(), 28U);  // of 14 parts
}

TEST_F(StepBodies, ASinglePartHasOneBody) { EXPECT_EQ(plateIn(plateAndCube())->bodies(), 1U); }

}  // namespace
