#include "tarnix/addin/main_commands.h"

#include "tarnix/addin/panels.h"

#include "tests/tarnix/addin/registration_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace test_support {
namespace {

class MainCommands : public AddinUiTest {};

TEST_F(MainCommands, ForDesignsHaveTheirTexts) {
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

TEST_F(MainCommands, ForOtherPurposesHaveTheirTexts) {
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

class MainCommandsWithIcons : public MainCommands {
protected:
    [[nodiscard]] host::SessionOptions options() const override { return addinWithIconsOptions(); }
};

TEST_F(MainCommandsWithIcons, NameFoldersThatTheAddinBrings) {
    for (const char* id : {"QM_TX_BOM", "QM_TX_projectedEntitiesAsConstruction",
                           "QM_TX_configuration", "QM_HD_openHelp"}) {
        const auto folder = session->addin().resource(definition(id)->resourceFolder());
        EXPECT_TRUE(std::filesystem::is_regular_file(folder / "32x32@2x.png")) << id;
    }
}

class RefusedMainCommand : public UnstartedAddinTest {};

TEST_F(RefusedMainCommand, IsNotReported) {
    faults.expectMisuse("CommandDefinitions::addButtonDefinition",
                        "the id \"QM_TX_onLineLibrary\" is in use");
    // The host holds the id already, so it refuses the add-in's.
    ASSERT_TRUE(ui()->commandDefinitions()->addButtonDefinition("QM_TX_onLineLibrary", "Mine", ""));

    EXPECT_TRUE(run());

    EXPECT_EQ(definition("QM_TX_onLineLibrary")->name(), "Mine");
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

class MainCommandControls : public RegistrationTest {};

TEST_F(MainCommandControls, PlacedTwiceAddTheConfigurationAgainAndNothingElse) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::addToolsPanels());
    const std::string tools = controls("QM_Tarnix_AlfaCAMEnvironment");

    tarnix::addCommandControls(kManufacture);

    EXPECT_EQ(controls("QM_Tarnix_AlfaCAMEnvironment"), tools);
    EXPECT_EQ(controls("QM_HD_panelCAMEnvironment"), text(R"(
        QM_TX_configuration
        QM_TX_configuration)"));
}

TEST_F(MainCommandControls, AreNotPlacedInAWorkspaceThatIsNotThere) {
    tarnix::createCommands();

    tarnix::addCommandControls("NoSuchEnvironment");

    EXPECT_FALSE(panel("QM_Tarnix_AlfaNoSuchEnvironment"));
    EXPECT_FALSE(panel("QM_HD_panelNoSuchEnvironment"));
}

}  // namespace
}  // namespace test_support
