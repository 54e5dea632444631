#include "tarnix/addin/main_commands.h"

#include "tarnix/addin/panels.h"

#include "tests/tarnix/addin/registration_fixture.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace test_support {
namespace {

class MainCommands : public AddinUiTest {};

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
