#include "host/base/last_error.h"
#include "host/design/geometry.h"
#include "tests/host/design/design_fixture.h"

using namespace adsk::core;
using namespace adsk::fusion;

namespace host {
namespace {

using ComponentTest = DesignTest;

TEST_F(ComponentTest, RenamingRenamesAllItsOccurrences) {
    open(R"(
        Frame
          Bolt
        Bolt)");

    EXPECT_TRUE(component("Frame:1")->name("Rack"));

    EXPECT_EQ(paths(), (Strings{"Rack:1", "Rack:1+Bolt:1", "Bolt:2"}));
}

TEST_F(ComponentTest, TakenNameGetsANumberAfterIt) {
    open("Bolt\nNut\nWasher");
    const Ptr<Component> nut = component("Nut:1");
    const Ptr<Component> washer = component("Washer:1");

    EXPECT_TRUE(nut->name("Bolt"));
    EXPECT_TRUE(washer->name("Bolt"));

    EXPECT_EQ(nut->name(), "Bolt (1)");
    EXPECT_EQ(washer->name(), "Bolt (2)");
}

TEST_F(ComponentTest, SettingItsOwnNameKeepsIt) {
    open("Bolt\nNut");
    const Ptr<Component> nut = component("Nut:1");
    nut->name("Bolt");

    EXPECT_TRUE(nut->name("Bolt (1)"));
    EXPECT_EQ(nut->name(), "Bolt (1)");

    EXPECT_TRUE(nut->name("Bolt"));
    EXPECT_EQ(nut->name(), "Bolt (1)");
}

TEST_F(ComponentTest, ReleasedNameIsFree) {
    open("Bolt\nNut");
    const Ptr<Component> nut = component("Nut:1");
    component("Bolt:1")->name("Screw");

    EXPECT_TRUE(nut->name("Bolt"));

    EXPECT_EQ(nut->name(), "Bolt");
}

TEST_F(ComponentTest, EmptyNameIsRefused) {
    open("Bolt");

    EXPECT_FALSE(component("Bolt:1")->name(""));

    EXPECT_EQ(component("Bolt:1")->name(), "Bolt");
    EXPECT_EQ(lastError().code, adsk::core::BadApiCallError);
}

TEST_F(ComponentTest, RootIsNamedAfterTheDocumentAndCannotBeRenamed) {
    open("Bolt");

    EXPECT_EQ(root()->name(), "Design");
    EXPECT_FALSE(root()->name("Gearbox"));
    EXPECT_EQ(root()->name(), "Design");
    EXPECT_EQ(lastError().code, adsk::core::OperationFailed);

    EXPECT_TRUE(document->name("Gearbox"));
    EXPECT_EQ(root()->name(), "Gearbox");
    EXPECT_EQ(root()->partNumber(), "Gearbox");
}

TEST_F(ComponentTest, PartNumberIsTheNameAndFollowsItUntilItIsSet) {
    open("Bolt");
    const Ptr<Component> bolt = component("Bolt:1");

    bolt->name("Screw");
    EXPECT_EQ(bolt->partNumber(), "Screw");

    bolt->partNumber("M8");
    bolt->name("Stud");
    EXPECT_EQ(bolt->partNumber(), "M8");
}

TEST_F(ComponentTest, PartNumberThatWasSetToTheNameDoesNotFollowIt) {
    open("Bolt");
    const Ptr<Component> bolt = component("Bolt:1");
    bolt->partNumber("Bolt");

    bolt->name("Screw");

    EXPECT_EQ(bolt->partNumber(), "Bolt");
}

TEST_F(ComponentTest, EmptyPartNumberIsKept) {
    open("Bolt");
    const Ptr<Component> bolt = component("Bolt:1");

    EXPECT_TRUE(bolt->partNumber(""));
    EXPECT_EQ(bolt->partNumber(), "");

    bolt->name("Screw");
    EXPECT_EQ(bolt->partNumber(), "");
}

TEST_F(ComponentTest, DescriptionIsEmptyUntilItIsSet) {
    open("Bolt");
    const Ptr<Component> bolt = component("Bolt:1");

    EXPECT_EQ(bolt->description(), "");
    EXPECT_TRUE(bolt->description("DIN 933"));
    EXPECT_EQ(component("Bolt:1")->description(), "DIN 933");
}

TEST_F(ComponentTest, MaterialIsTheDefaultWhereNoneIsDeclaredAndMayBeMissing) {
    open(R"(
        Bolt
        Plate  material=Aluminium:0.0027
        Air    material=none)");

    EXPECT_EQ(component("Bolt:1")->material()->name(), "Steel");
    EXPECT_EQ(component("Plate:1")->material()->name(), "Aluminium");
    EXPECT_EQ(component("Air:1")->material(), nullptr);
}

TEST_F(ComponentTest, ComponentsOfOneMaterialShareIt) {
    open(R"(
        Bolt
        Nut)");
    const Ptr<Material> steel = component("Bolt:1")->material();

    EXPECT_EQ(component("Nut:1")->material(), steel);
    steel->name("Stainless");
    EXPECT_EQ(component("Nut:1")->material()->name(), "Stainless");
    EXPECT_EQ(snapshot(document).components[2].material->name, "Stainless");
}

TEST_F(ComponentTest, TakesTheMaterialOfAnother) {
    open(R"(
        Bolt   box=1x1x1
        Plate  material=Aluminium:0.0027)");

    EXPECT_TRUE(component("Bolt:1")->material(component("Plate:1")->material()));
    EXPECT_FALSE(component("Bolt:1")->material(nullptr));

    EXPECT_EQ(component("Bolt:1")->material(), component("Plate:1")->material());
    EXPECT_DOUBLE_EQ(component("Bolt:1")->physicalProperties()->mass(), 0.0027);
}

TEST_F(ComponentTest, MaterialOfAnotherDocumentBecomesItsOwn) {
    open("Bolt");
    const Ptr<adsk::core::Document> other = makeDocument(parseOutline("P  material=Zinc:0.007"));
    const Ptr<Material> zinc =
        designOf(other)->rootComponent()->occurrences()->item(0)->component()->material();

    EXPECT_TRUE(component("Bolt:1")->material(zinc));
    endDocument(other);

    EXPECT_FALSE(zinc->isValid());
    EXPECT_EQ(component("Bolt:1")->material()->name(), "Zinc");
}

TEST_F(ComponentTest, ObjectsKnowTheirClass) {
    open("Bolt");

    EXPECT_EQ(root()->objectType(), Component::classType());
    EXPECT_EQ(std::string(occurrence("Bolt:1")->objectType()), "adsk::fusion::Occurrence");
    EXPECT_EQ(std::string(root()->attributes()->objectType()), "adsk::core::Attributes");
    EXPECT_EQ(std::string(root()->material()->objectType()), "adsk::core::Material");
    EXPECT_EQ(std::string(designOf(document)->objectType()), "adsk::fusion::Design");
    EXPECT_EQ(std::string(document->objectType()), "adsk::fusion::FusionDocument");
}

}  // namespace
}  // namespace host
