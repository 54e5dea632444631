#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;

/// The inputs of a dialog that were reported to its handlers while this lives.
class ChangedInputs final : public adsk::core::InputChangedEventHandler {
public:
    explicit ChangedInputs(const Ptr<Command>& dialog) { dialog->inputChanged()->add(this); }

    /// Their ids, oldest first, with a space between.
    [[nodiscard]] std::string ids() const { return ids_; }

    void notify(const Ptr<InputChangedEventArgs>& eventArgs) override {
        ids_ += (ids_.empty() ? "" : " ") + eventArgs->input()->id();
    }

private:
    std::string ids_;
};

const std::string kWithoutThePlate = text(R"(
    1 | Part | Bolt
    3 | Part | Rod
    4 | Part | Nut
    5 | Part | Cap)");

class ColumnChoice : public BomDialogTest {
protected:
    void SetUp() override {
        BomDialogTest::SetUp();
        open(R"(
            Bolt
            Plate
            Rod
            Nut
            Cap)");
    }
};

TEST_F(ColumnChoice, OfAPropertyMarksItsColumnAsUsed) {
    showConfiguration();

    session->choose("iProperty_4", "Mass");

    EXPECT_EQ(value("colUsrHeader_5"), "used");
    EXPECT_EQ(value("nameCol9"), "Mass");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfAHeadingFreesItsColumn) {
    showConfiguration();
    session->choose("iProperty_4", "Mass");

    session->choose("iProperty_4", "--- User Property ---");

    EXPECT_EQ(value("colUsrHeader_5"), "not use");
    EXPECT_EQ(value("nameCol9"), "");
    const Ptr<DropDownCommandInput> dropDown = session->input("iProperty_4");
    EXPECT_EQ(dropDown->selectedItem()->name(), "---Select One---");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfAPropertyIsSeenOnce) {
    showConfiguration();
    const ChangedInputs changed(session->dialog());

    session->choose("iProperty_4", "Mass");

    EXPECT_EQ(changed.ids(), "iProperty_4");
}

TEST_F(ColumnChoice, OfAHeadingIsSeenOnceMoreForTheFirstEntry) {
    showConfiguration();
    const ChangedInputs changed(session->dialog());

    session->choose("iProperty_4", "--- User Property ---");

    EXPECT_EQ(changed.ids(), "iProperty_4 iProperty_4");
    EXPECT_EQ(value("colUsrHeader_5"), "not use");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfTheFirstEntryIsSeenOnce) {
    showConfiguration();
    session->choose("iProperty_4", "Mass");
    const ChangedInputs changed(session->dialog());

    session->choose("iProperty_4", "---Select One---");

    EXPECT_EQ(changed.ids(), "iProperty_4");
    EXPECT_EQ(value("colUsrHeader_5"), "not use");
}

TEST_F(ColumnChoice, LeavesTheOtherColumnsAlone) {
    showConfiguration();

    session->choose("iProperty_0", "Mass");

    EXPECT_EQ(value("colUsrHeader_1"), "used");
    EXPECT_EQ(value("nameCol5"), "Mass");
    EXPECT_EQ(value("colUsrHeader_2"), "not used");
    EXPECT_EQ(value("nameCol6"), "");
}

TEST_F(ColumnChoice, KeepsATypedCaptionUntilTheNextChoice) {
    showConfiguration();
    session->choose("iProperty_4", "Mass");
    session->paste("nameCol9", "Weight");
    session->choose("iProperty_3", "Area");
    EXPECT_EQ(value("nameCol9"), "Weight");

    session->choose("iProperty_4", "Volume");

    EXPECT_EQ(value("nameCol9"), "Volume");
}

TEST_F(ColumnChoice, OfReferenceHidesTheRowOfTheStructureTable) {
    showStructure();

    session->choose("bomStructure_2", "Reference");

    EXPECT_EQ(table(), kWithoutThePlate);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfReferenceInTheModelTableHidesNothing) {
    showModel();

    session->choose("modelBomStructure_2", "Reference");

    EXPECT_TRUE(session->input("modelPartNumberOcc_2")->isVisible());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfAnotherStructureShowsNothingAgain) {
    showStructure();
    session->choose("bomStructure_2", "Reference");

    session->choose("bomStructure_1", "Buy");

    EXPECT_EQ(table(), kWithoutThePlate);
}

TEST_F(ColumnChoice, OfReferenceHidesUntilTheDialogOpensAgain) {
    showStructure();
    session->choose("bomStructure_2", "Reference");
    session->choose("bomStructure_1", "Buy");
    ASSERT_FALSE(session->input("partNumberOcc_2")->isVisible());
    session->cancel();

    showStructure();

    EXPECT_EQ(table(), text(R"(
        1 | Part | Bolt
        2 | Part | Plate
        3 | Part | Rod
        4 | Part | Nut
        5 | Part | Cap)"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ColumnChoice, OfReferenceStaysOutOfSightAfterAChangeOfTab) {
    showStructure();
    session->choose("bomStructure_2", "Reference");
    showModel();

    showStructure();

    EXPECT_FALSE(session->input("partNumberOcc_2")->isVisible());
    EXPECT_TRUE(session->input("partNumberOcc_1")->isVisible());
}

TEST_F(ColumnChoice, OfReferenceHidesEveryLongerNumberThatBeginsAlike) {
    open(R"(
        A
        B
        C
        D
        E
        F
        G
        H
        I
        J
        K
        L)");
    showStructure();

    session->choose("bomStructure_1", "Reference");

    // One begins ten, eleven and twelve as well: the characters are compared.
    EXPECT_EQ(table(), text(R"(
        2 | Part | B
        3 | Part | C
        4 | Part | D
        5 | Part | E
        6 | Part | F
        7 | Part | G
        8 | Part | H
        9 | Part | I)"));
}

TEST_F(ColumnChoice, OfReferenceTakesTheIdsNumberForATableRow) {
    open(R"(
        Bolt
        Bolt
        Plate
        Rod
        Nut)");
    showStructure();

    // The plate's id is 3, for there are two bolts before it; row 3 of the table is the rod's.
    session->choose("bomStructure_3", "Reference");

    EXPECT_EQ(table(), text(R"(
        1 | Part | Bolt
        2 | Part | Plate
        4 | Part | Nut)"));
}

TEST_F(ColumnChoice, OfReferenceBeyondTheTablesEndThrowsAndHidesNothing) {
    open(R"(
        Bolt
        Bolt
        Plate)");
    showStructure();

    session->choose("bomStructure_3", "Reference");

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of bomStructure_3");
    EXPECT_EQ(table(), text(R"(
        1 | Part | Bolt
        2 | Part | Plate)"));
}

}  // namespace
}  // namespace test_support
