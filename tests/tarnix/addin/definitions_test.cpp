#include "tests/tarnix/addin/addin_ui_test.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace test_support {
namespace {

class Definitions : public AddinUiTest {};

TEST_F(Definitions, OfTheMainCommandsHaveTheirTexts) {
    EXPECT_EQ(texts("QEMA_EditPropertiesCmd"), text(R"(
        Edit custom properties
        Dialog for editing custom properties
        ././Resources/Properties)"));
    EXPECT_EQ(texts("QM_TX_BOM"), text(R"(
        BOM
        Bill of materials
        ././Resources/BOM)"));
    EXPECT_EQ(texts("QM_TX_moveComponentToOrigin"), text(R"(
        Move To Origin
        Move selected component to the origin
        ././Resources/MoveComponentToOrigin)"));
    EXPECT_EQ(texts("QM_TX_projectedEntitiesAsConstruction"), text(R"(
        Projected Entities As Construction
        Set projected entities as construction geometry
        ./Resources/ProjEntAsConstruction)"));
}

TEST_F(Definitions, OfTheOtherMainCommandsHaveTheirTexts) {
    EXPECT_EQ(texts("QM_TX_unitsConversion"),
              "Units Conversion\n"
              "A Unit converter for more than 750 types of international and historical physical "
              "measurement units: length, area, volume, time, mass, density, pressure, moment, "
              "power, flux, number systems, etc. \n"
              "././Resources/UnitsConversion");
    EXPECT_EQ(texts("QM_TX_configuration"), text(R"(
        Tarnix Configuration
        Tarnix Configuration
        ././Resources/Configuration)"));
    EXPECT_EQ(texts("QM_TX_onLineLibrary"), text(R"(
        Models->F
        One step for insert on-Line models to the Fusion 360
        ././Resources/OnLineLibrary)"));
    EXPECT_EQ(texts("QEMA_OpenLocalCmd_QAT"), text(R"(
        Open local file
        Open / Import file from local storage
        ././Resources/OpenLocalFile)"));
}

TEST_F(Definitions, OfTheFirstHelpdeskCommandsHaveTheirTexts) {
    EXPECT_EQ(texts("QM_HD_openHelpdesk"), text(R"(
        Go to Helpdesk
        Open your Helpdesk web site
        Resources/OpenHelpdesk)"));
    EXPECT_EQ(texts("QM_HD_captureScreen"), text(R"(
        Capture screen
        Capture all what is visible on screen and save it on disk to the Helpdesk folder
        Resources/CaptureScreen)"));
    EXPECT_EQ(texts("QM_HD_captureFusion"), text(R"(
        Capture Fusion
        Capture window of the Fusion application and save it on disk to the Helpdesk folder
        Resources/CaptureInventor)"));
    EXPECT_EQ(texts("QM_HD_systemInfo"), text(R"(
        System info
        Save information about your system in a text file
        Resources/SaveSystemInfo)"));
}

TEST_F(Definitions, OfTheLastHelpdeskCommandsHaveTheirTexts) {
    EXPECT_EQ(texts("QM_HD_compressFolder"), text(R"(
        Zip
        Compress all context in the Helpdesk folder
        Resources/ZipFolder)"));
    EXPECT_EQ(texts("QM_HD_openFolder"), text(R"(
        Open Helpdesk Folder
        Open the Helpdesk folder in Explorer
        Resources/OpenFolder)"));
    EXPECT_EQ(texts("QM_HD_clearFolder"), text(R"(
        Delete Helpdesk Folder
        Delete all context in the Helpdesk folder
        Resources/DeleteFolder)"));
    EXPECT_EQ(texts("QM_HD_openHelp"), text(R"(
        Open Help
        Open User Guide
        Resources/OpenHelp)"));
}

TEST_F(Definitions, NameIconFoldersThatTheAddinBrings) {
    for (const std::string& id : {"QM_TX_BOM", "QM_TX_projectedEntitiesAsConstruction",
                                  "QM_TX_configuration", "QM_HD_openHelp"}) {
        const auto folder = session->addin().resource(definition(id)->resourceFolder());
        EXPECT_TRUE(std::filesystem::is_regular_file(folder / "32x32@2x.png")) << id;
    }
}

TEST_F(Definitions, OfHelpdeskCommandsRunWithoutADialog) {
    session->press("QM_HD_systemInfo");

    EXPECT_FALSE(session->dialogOpen());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class RefusedDefinition : public UnstartedAddinTest {};

TEST_F(RefusedDefinition, OfAMainCommandGoesUnreported) {
    // The host holds the id already, so it refuses the add-in's.
    ASSERT_TRUE(ui()->commandDefinitions()->addButtonDefinition("QM_TX_onLineLibrary", "Mine", ""));

    EXPECT_TRUE(run());

    EXPECT_EQ(definition("QM_TX_onLineLibrary")->name(), "Mine");
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RefusedDefinition, OfAHelpdeskCommandIsTakenAsItIs) {
    ASSERT_TRUE(ui()->commandDefinitions()->addButtonDefinition("QM_HD_openHelp", "Mine", ""));

    EXPECT_TRUE(run());

    EXPECT_EQ(definition("QM_HD_openHelp")->name(), "Mine");
}

}  // namespace
}  // namespace test_support
