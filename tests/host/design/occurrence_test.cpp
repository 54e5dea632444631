#include "tests/host/design/design_fixture.h"

#include "host/base/last_error.h"
#include "host/design/geometry_objects.h"
#include "host/design/transform.h"

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

using OccurrenceTest = DesignTest;

TEST_F(OccurrenceTest, PathJoinsTheNamesFromTheTop) {
    open(R"(
        Sub1
          Sub2
            Part
          Part)");

    EXPECT_EQ(paths(),
              (Strings{"Sub1:1", "Sub1:1+Sub2:1", "Sub1:1+Sub2:1+Part:1", "Sub1:1+Part:2"}));
    EXPECT_EQ(occurrence("Sub1:1+Sub2:1+Part:1")->name(), "Part:1");
}

TEST_F(OccurrenceTest, InstanceNumbersCountTheUsesOverTheWholeDesign) {
    open(R"(
        Axle
          Bolt
        Bolt
        Axle
        Bolt)");

    EXPECT_EQ(paths(),
              (Strings{"Axle:1", "Axle:1+Bolt:1", "Bolt:2", "Axle:2", "Axle:2+Bolt:1", "Bolt:3"}));
}

TEST_F(OccurrenceTest, TwoUsesOfAnAssemblyHaveDistinctChildrenOfOneComponent) {
    open(R"(
        Axle
          Bolt
        Axle)");
    const Ptr<Occurrence> first = occurrence("Axle:1+Bolt:1");
    const Ptr<Occurrence> second = occurrence("Axle:2+Bolt:1");

    EXPECT_NE(first, second);
    EXPECT_EQ(first->component(), second->component());
}

TEST_F(OccurrenceTest, TheSamePlaceIsAlwaysTheSameObject) {
    open(R"(
        Axle
          Bolt)");
    const Ptr<Occurrence> axle = root()->occurrences()->item(0);

    EXPECT_EQ(root()->occurrences(), root()->occurrences());
    EXPECT_EQ(root()->occurrences()->asList()->item(0), axle);
    EXPECT_EQ(axle->childOccurrences(), axle->childOccurrences());
    EXPECT_EQ(axle->childOccurrences()->item(0), axle->childOccurrences()->item(0));
    EXPECT_EQ(axle->component(), axle->component());
    EXPECT_EQ(designOf(document)->rootComponent(), root());
}

TEST_F(OccurrenceTest, ComponentsOwnOccurrencesHaveItAsTheirContext) {
    open(R"(
        Axle
          Hub
            Bolt)");
    const Ptr<Occurrence> hub = component("Axle:1")->occurrences()->item(0);

    EXPECT_EQ(hub->fullPathName(), "Hub:1");
    EXPECT_EQ(hub->childOccurrences()->item(0)->fullPathName(), "Hub:1+Bolt:1");
    EXPECT_NE(hub, occurrence("Axle:1+Hub:1"));
}

TEST_F(OccurrenceTest, PartHasAnEmptyListOfChildren) {
    open("Bolt");
    const Ptr<OccurrenceList> children = occurrence("Bolt:1")->childOccurrences();

    EXPECT_EQ(children->count(), 0u);
    EXPECT_EQ(children->item(0), nullptr);
    EXPECT_EQ(component("Bolt:1")->occurrences()->count(), 0u);
}

TEST_F(OccurrenceTest, BadIndexAndUnknownNameReturnNull) {
    open(R"(
        Bolt
        Nut)");
    const Ptr<Occurrences> all = root()->occurrences();

    EXPECT_EQ(all->count(), 2u);
    EXPECT_EQ(all->item(2), nullptr);
    EXPECT_EQ(all->item(static_cast<std::size_t>(-1)), nullptr);
    EXPECT_EQ(all->asList()->itemByName("Nut:2"), nullptr);
    EXPECT_EQ(all->asList()->itemByName("Nut:1"), all->item(1));
}

TEST_F(OccurrenceTest, AbsentPlaceIsCountedAndReturnsNull) {
    open(R"(
        Bolt
        (absent)
        Nut)");
    const Ptr<OccurrenceList> list = root()->occurrences()->asList();

    EXPECT_EQ(list->count(), 3u);
    EXPECT_EQ(list->item(1), nullptr);
    EXPECT_EQ(list->item(2)->name(), "Nut:1");
    EXPECT_EQ(list->itemByName("Nut:1"), list->item(2));
}

TEST_F(OccurrenceTest, GroundingIsPerPlace) {
    open(R"(
        Bolt
        Bolt
        Nut  grounded)");

    EXPECT_TRUE(occurrence("Bolt:2")->isGrounded(true));

    EXPECT_FALSE(occurrence("Bolt:1")->isGrounded());
    EXPECT_TRUE(occurrence("Bolt:2")->isGrounded());
    EXPECT_TRUE(occurrence("Nut:1")->isGrounded());
}

TEST_F(OccurrenceTest, ReferencedComponentBelongsToAnotherDocument) {
    open(R"(
        Motor  document="Motor M1"
          Rotor  document="Motor M1"
        Frame)");
    const Ptr<Occurrence> motor = occurrence("Motor:1");
    const Ptr<adsk::core::Document> external = motor->component()->parentDesign()->parentDocument();

    EXPECT_TRUE(motor->isReferencedComponent());
    EXPECT_FALSE(occurrence("Motor:1+Rotor:1")->isReferencedComponent());
    EXPECT_FALSE(occurrence("Frame:1")->isReferencedComponent());
    EXPECT_EQ(external->name(), "Motor M1");
    EXPECT_EQ(component("Motor:1+Rotor:1")->parentDesign()->parentDocument(), external);
    EXPECT_EQ(component("Frame:1")->parentDesign()->parentDocument(), document);
    EXPECT_EQ(component("Motor:1")->parentDesign()->rootComponent(), component("Motor:1"));
}

TEST_F(OccurrenceTest, PathOfADeepAssemblyIsWhole) {
    std::string outline;
    std::string expected;
    for (int level = 0; level < 40; ++level) {
        outline += std::string(static_cast<std::size_t>(level) * 2, ' ') + "A" +
                   std::to_string(level) + "\n";
        expected += (level == 0 ? "A" : "+A") + std::to_string(level) + ":1";
    }
    open(outline);

    EXPECT_EQ(paths().back(), expected);
}

// Occurrences_addNewComponent: an empty component, and an occurrence of it in the owner's context.
TEST_F(OccurrenceTest, ANewComponentIsPlacedBehindTheOthers) {
    open("Bolt");
    const Ptr<Occurrence> bolt = occurrence("Bolt:1");
    const Ptr<OccurrenceList> list = root()->occurrences()->asList();
    const Ptr<Matrix3D> placed = makeMatrix(translation(1, 2, 3));

    const Ptr<Occurrence> added = root()->occurrences()->addNewComponent(placed);

    EXPECT_EQ(added->fullPathName(), "Component1:1");
    EXPECT_EQ(list->item(1), added);
    EXPECT_EQ(occurrence("Bolt:1"), bolt);
    const Ptr<Component> component = added->component();
    EXPECT_EQ(component->partNumber(), "Component1");
    EXPECT_EQ(component->material()->name(), "Steel");
    EXPECT_EQ(component->parentDesign(), designOf(document));
    EXPECT_EQ(component->physicalProperties()->mass(), 0);
    EXPECT_EQ(component->occurrences()->count(), 0U);
    EXPECT_TRUE(bolt->isGrounded(true));
    EXPECT_EQ(editCount(document), 2U);
    EXPECT_EQ(snapshot(document).components[0].children[1].transform, translation(1, 2, 3));
}

TEST_F(OccurrenceTest, ANewComponentShowsInEachUseOfItsOwner) {
    open(R"(
        Axle
          Bolt
        Axle)");
    const Ptr<Occurrence> bolt = occurrence("Axle:2+Bolt:1");
    EXPECT_EQ(bolt->childOccurrences()->count(), 0U);

    component("Axle:1")->occurrences()->addNewComponent(Matrix3D::create());
    bolt->component()->occurrences()->addNewComponent(Matrix3D::create())->component()->name("X");

    EXPECT_EQ(paths(),
              (Strings{"Axle:1", "Axle:1+Bolt:1", "Axle:1+Bolt:1+X:1", "Axle:1+Component1:1",
                       "Axle:2", "Axle:2+Bolt:1", "Axle:2+Bolt:1+X:1", "Axle:2+Component1:1"}));
    EXPECT_EQ(occurrence("Axle:2+Bolt:1"), bolt);
    EXPECT_EQ(occurrence("Axle:2+Bolt:1+X:1"), occurrence("Axle:2+Bolt:1+X:1"));
}

TEST_F(OccurrenceTest, ANewComponentTakesTheNextNumberThatIsFree) {
    open(R"(
        Component1
        Component3)");

    for (const char* name : {"Component2", "Component4", "Component5"}) {
        EXPECT_EQ(root()->occurrences()->addNewComponent(Matrix3D::create())->component()->name(),
                  name);
    }
}

TEST_F(OccurrenceTest, ANewComponentNeedsATransform) {
    open("Bolt");

    EXPECT_FALSE(root()->occurrences()->addNewComponent(nullptr));

    EXPECT_EQ(lastError().description, "Occurrences::addNewComponent: the transform is null");
    EXPECT_EQ(paths(), (Strings{"Bolt:1"}));
}

TEST_F(OccurrenceTest, ADesignWithNewComponentsIsSavedAndOpenedAgain) {
    open("Bolt");
    const Ptr<Occurrence> added = root()->occurrences()->addNewComponent(Matrix3D::create());
    added->component()->occurrences()->addNewComponent(Matrix3D::create());
    const Strings before = paths();

    open(snapshot(document));

    EXPECT_EQ(paths(), before);
}

}  // namespace
}  // namespace host
