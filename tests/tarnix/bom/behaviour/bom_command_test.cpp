#include "tarnix/bom/behaviour/bom_command.h"

#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"
#include "tests/tarnix/bom/behaviour/synthetic_dialog.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;

class InputRouting : public BomDialogTest {};

TEST_F(InputRouting, ARowOfTheModelTabSelectsItsOccurrence) {
    open(R"(
        Bolt
        Plate
        Bolt)");
    showModel();

    session->paste("modelPartNumberOcc_3", "B-1");

    EXPECT_EQ(selected(), "Bolt:2");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(InputRouting, ARowOfTheStructureTabSelectsThePartsOfItsParent) {
    open(R"(
        Frame  structure=Divided
          Leg
          Leg
          Foot
          Leg
        Table  structure=Divided
          Leg)");
    showStructure();

    // Rows: Frame, Leg, Leg, Foot, Leg, Table, Leg.
    session->paste("partNumberOcc_2", "L-1");

    EXPECT_EQ(selected(), text(R"(
        Frame:1+Leg:1
        Frame:1+Leg:2
        Frame:1+Leg:3)"));
}

TEST_F(InputRouting, ARowAtTheTopOfTheStructureTabSelectsThePartsAtTheTop) {
    open(R"(
        Bolt
        Plate
        Bolt
        Frame
          Bolt)");
    showStructure();

    session->paste("partNumberOcc_1", "B-1");

    EXPECT_EQ(selected(), text(R"(
        Bolt:1
        Bolt:2)"));
}

TEST_F(InputRouting, ARowIsSelectedInThePlaceOfWhatWasSelected) {
    open("Bolt\nPlate");
    showModel();
    session->paste("modelPartNumberOcc_1", "B-1");

    session->paste("modelPartNumberOcc_2", "P-1");

    EXPECT_EQ(selected(), "Plate:1");
}

TEST_F(InputRouting, AChangeOfTabSelectsNothing) {
    open("Bolt\nPlate");
    openBom();
    select(1);

    showStructure();

    EXPECT_EQ(selected(), "Plate:1");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(InputRouting, ACellOfTheConfigurationTabSelectsNothing) {
    open("Bolt\nPlate");
    showConfiguration();
    select(1);

    session->choose("iProperty_1", "Mass");

    EXPECT_EQ(selected(), "Plate:1");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(InputRouting, AHeaderCellSelectsNothing) {
    open("Bolt\nPlate");
    showStructure();
    select(1);

    session->click("partNumberOcc_0");

    EXPECT_EQ(selected(), "Plate:1");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(InputRouting, AnIdWithoutANumberThrowsAndTheDialogStaysOpen) {
    open("Bolt");
    showStructure();

    session->choose("QEMA_droDown_AscDesc", "Descending");

    EXPECT_EQ(uncaughtExceptions(),
              "std::invalid_argument: invalid stoi argument in OnInputChanged of "
              "QEMA_droDown_AscDesc");
    EXPECT_TRUE(session->dialogOpen());
}

TEST_F(InputRouting, WithoutAnActiveProductNothingHappens) {
    open("Plate  number=P-1");
    showModel();
    host::gate::refuse("Application::activeProduct", 1);

    session->paste("modelPartNumberOcc_1", "P-2");

    EXPECT_EQ(selected(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(InputRouting, WithoutADesignNothingHappens) {
    session->openForeignDocument();
    tarnix::BomCmdInputChangedHandler handler;
    SyntheticDialog dialog("SyntheticCell", [&](const Ptr<CommandInputs>& inputs) {
        inputs->addStringValueInput("cell", "");
        inputs->command()->inputChanged()->add(&handler);
    });
    dialog.open();

    // The follow-ups would throw: the id has no number.
    session->paste("cell", "text");

    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
