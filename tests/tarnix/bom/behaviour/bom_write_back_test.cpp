#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;
using namespace adsk::fusion;

constexpr const char* kGroup = "QEMA_PropertiesAttributesGroup";

constexpr const char* kTwoParts = "Bolt  number=B-1\nPlate  number=P-1";

class BomWriteBack : public BomDialogTest {
protected:
    /// The attributes of the component at a place at the top, as name=value with spaces between.
    [[nodiscard]] std::string attributes(std::size_t index) const {
        std::string texts;
        for (const Ptr<Attribute>& each : component(index)->attributes()->itemsByGroup(kGroup)) {
            texts += (texts.empty() ? "" : " ") + each->name() + "=" + each->value();
        }
        return texts;
    }

    /// The part numbers of the first two components at the top.
    [[nodiscard]] std::string partNumbers() const {
        return component(0)->partNumber() + " " + component(1)->partNumber();
    }

    /// Accepts the dialog, and closes the one that comes back for it.
    void save() {
        session->ok();
        if (session->dialogOpen()) {
            session->cancel();
        }
    }
};

TEST_F(BomWriteBack, WritesEditedPartNumbersOfTheStructureTable) {
    open(kTwoParts);
    showStructure();
    session->paste("partNumberOcc_2", "P-2");

    save();

    EXPECT_EQ(partNumbers(), "B-1 P-2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomWriteBack, WritesEditedPartNumbersOfTheModelTable) {
    open(kTwoParts);
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");

    save();

    EXPECT_EQ(partNumbers(), "B-2 P-1");
}

TEST_F(BomWriteBack, WritesNothingFromTheConfigurationTab) {
    open("Bolt  number=B-1");
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");
    showConfiguration();

    save();

    EXPECT_EQ(component(0)->partNumber(), "B-1");
    EXPECT_EQ(attributes(0), "");
}

TEST_F(BomWriteBack, DropsWhatTheOtherTabHolds) {
    open("Bolt  number=B-1");
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");
    showStructure();

    save();

    EXPECT_EQ(component(0)->partNumber(), "B-1");
}

TEST_F(BomWriteBack, WritesAllFiveStructures) {
    open("Bolt");
    showModel();
    session->choose("modelBomStructure_1", "Buy");

    save();

    EXPECT_EQ(attributes(0), "Produce= Buy=1 AsPart= Divided= Reference=");
}

TEST_F(BomWriteBack, TakesTheOldStructureAway) {
    open("Bolt  structure=Reference");
    showModel();
    session->choose("modelBomStructure_1", "AsPart");

    save();

    EXPECT_EQ(attributes(0), "Produce= Buy= AsPart=1 Divided= Reference=");
}

TEST_F(BomWriteBack, WritesAReferenceThatTheModelTableDidNotHide) {
    open(R"(
        Bolt  structure=Buy
        Plate)");
    showModel();
    session->choose("modelBomStructure_1", "Reference");
    ASSERT_TRUE(session->input("modelPartNumberOcc_1")->isVisible());

    save();

    EXPECT_EQ(attributes(0), "Produce= Buy= AsPart= Divided= Reference=1");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomWriteBack, KeepsThePartNumberWhenTheNameChanges) {
    configure({"QEMA_Part Name;Name"});
    open("Bolt");
    showModel();
    session->paste("QEMA_Part Name_1", "Screw");

    save();

    EXPECT_EQ(component(0)->name(), "Screw");
    EXPECT_EQ(component(0)->partNumber(), "Bolt");
}

TEST_F(BomWriteBack, WritesDescriptions) {
    configure({"QEMA_Description;Text"});
    open("Bolt");
    showStructure();
    session->paste("QEMA_Description_1", "short");

    save();

    EXPECT_EQ(component(0)->description(), "short");
}

TEST_F(BomWriteBack, WritesACustomPropertyThatTheComponentHas) {
    configure({"QEMA_Colour;Colour"});
    open("Bolt  property=Colour/red");
    showModel();
    session->paste("QEMA_Colour_1", "blue");

    save();

    EXPECT_EQ(attributes(0), "QEMA_Colour=blue Produce=1 Buy= AsPart= Divided= Reference=");
}

TEST_F(BomWriteBack, LeavesOutACustomPropertyThatTheComponentHasNot) {
    configure({"QEMA_Colour;Colour"});
    open(R"(
        Bolt  property=Colour/red
        Plate)");
    showModel();
    session->paste("QEMA_Colour_2", "blue");

    save();

    EXPECT_EQ(attributes(1), "Produce=1 Buy= AsPart= Divided= Reference=");
}

TEST_F(BomWriteBack, AddsAMeasuredColumnOnce) {
    configure({"QEMA_Mass;Mass"});
    open("Bolt  measures=10:100");
    showModel();
    save();
    EXPECT_EQ(attributes(0), "Produce=1 Buy= AsPart= Divided= Reference= QEMA_Mass=0.785");
    showModel();
    session->paste("QEMA_Mass_1", "9");

    save();

    EXPECT_EQ(attributes(0), "Produce=1 Buy= AsPart= Divided= Reference= QEMA_Mass=0.785");
}

TEST_F(BomWriteBack, WritesHiddenRowsToo) {
    open(kTwoParts);
    showStructure();
    session->paste("partNumberOcc_2", "P-2");
    session->choose("bomStructure_2", "Reference");

    save();

    EXPECT_EQ(component(1)->partNumber(), "P-2");
    EXPECT_EQ(attributes(1), "Produce= Buy= AsPart= Divided= Reference=1");
}

TEST_F(BomWriteBack, WritesFoldedRowsToo) {
    open(R"(
        Frame
          Leg  number=L-1)");
    showModel();
    session->click("modelColapseRow_1");
    session->paste("modelPartNumberOcc_2", "L-2");
    session->click("modelColapseRow_1");
    ASSERT_FALSE(session->input("modelPartNumberOcc_2")->isVisible());

    save();

    EXPECT_EQ(component(0)->occurrences()->item(0)->component()->partNumber(), "L-2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomWriteBack, LetsTheLastRowOfAComponentWin) {
    open(R"(
        Bolt  number=B-1
        Bolt)");
    showModel();
    session->paste("modelPartNumberOcc_1", "B-2");

    save();

    // The second row still holds the old value, and is written after the first.
    EXPECT_EQ(component(0)->partNumber(), "B-1");
}

TEST_F(BomWriteBack, CutsTheMarkerOffACombinedRowAndWritesNothingElse) {
    open(R"(
        Bolt  number=B-1 description=first
        Screw  number=B-1 description=second)");
    showStructure();
    ASSERT_EQ(component(0)->description(), "***different***first");
    session->paste("partNumberOcc_1", "B-2");

    save();

    // No part number of the table matches, so the plain walk is written, which marks nothing.
    EXPECT_EQ(component(0)->description(), "first");
    EXPECT_EQ(component(0)->partNumber(), "B-1");
    EXPECT_EQ(attributes(0), "");
}

TEST_F(BomWriteBack, MarksAndCutsACombinedRowWhereANumberMatches) {
    open(R"(
        Bolt  number=B-1 description=first
        Screw  number=B-1 description=second)");
    showStructure();

    save();

    EXPECT_EQ(component(0)->description(), "first");
    EXPECT_EQ(component(1)->description(), "second");
}

TEST_F(BomWriteBack, OfACombinedRowWithAShortDescriptionThrows) {
    open(R"(
        Bolt  number=B-1 description=same
        Screw  number=B-1 description=same
        Plate  number=P-1)");
    showStructure();
    session->paste("partNumberOcc_3", "P-2");

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::out_of_range: invalid string position in OnExecute");
    // The write ended there.
    EXPECT_EQ(component(2)->partNumber(), "P-1");
}

TEST_F(BomWriteBack, OfACombinedRowWithoutADescriptionWritesNothing) {
    open(R"(
        Bolt  number=B-1
        Screw  number=B-1)");
    showStructure();

    save();

    EXPECT_EQ(component(0)->description(), "");
    EXPECT_EQ(attributes(0), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomWriteBack, OfTheStructureTableThrowsWhereAPlaceAtTheTopIsEmpty) {
    open(R"(
        Bolt  number=B-1
        (absent))");
    showStructure();
    session->paste("partNumberOcc_1", "B-2");

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(component(0)->partNumber(), "B-1");
    EXPECT_EQ(attributes(0), "");
}

TEST_F(BomWriteBack, OfTheStructureTableLooksBeyondTheFirstMatchToo) {
    open(R"(
        Bolt  number=B-1
        (absent))");
    showStructure();

    session->ok();

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
    EXPECT_EQ(attributes(0), "");
}

TEST_F(BomWriteBack, OfTheModelTableSkipsAPlaceAtTheTopThatIsEmpty) {
    open(R"(
        Bolt  number=B-1
        (absent)
        Plate  number=P-1)");
    showModel();
    session->paste("modelPartNumberOcc_2", "P-2");

    save();

    EXPECT_EQ(component(2)->partNumber(), "P-2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomWriteBack, LeavesAlonePlacementsAndOtherGroups) {
    open(R"(
        Bolt  at=1,2,3 grounded attribute=Other/Key/value)");
    showModel();
    const host::DesignData before = session->design();

    save();

    const host::DesignData after = session->design();
    EXPECT_TRUE(root()->occurrences()->item(0)->isGrounded());
    EXPECT_EQ(component(0)->attributes()->itemByName("Other", "Key")->value(), "value");
    EXPECT_EQ(after.components.size(), before.components.size());
}

}  // namespace
}  // namespace test_support
