#include "tarnix/addin/panels.h"

#include "tests/tarnix/addin/registration_fixture.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;

class HelpdeskPanel : public RegistrationTest {};

TEST_F(HelpdeskPanel, IsFilledOnce) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::addToolsPanels());
    ASSERT_TRUE(tarnix::createHelpdeskCommands());
    const Ptr<adsk::core::Workspace> workspace = ui()->workspaces()->itemById(kSolid);

    EXPECT_TRUE(tarnix::addHelpdeskPanel(workspace));
    const auto controlsOfPanel = panel("QM_HD_panelFusionSolidEnvironment")->controls();
    EXPECT_EQ(controlsOfPanel->count(), 9U);
    EXPECT_TRUE(tarnix::addHelpdeskPanel(workspace));

    EXPECT_EQ(controlsOfPanel->count(), 9U);
}

TEST_F(HelpdeskPanel, StaysEmptyWithoutTheConfiguration) {
    tarnix::createCommands();
    ASSERT_TRUE(tarnix::createHelpdeskCommands());

    EXPECT_TRUE(tarnix::addHelpdeskPanel(ui()->workspaces()->itemById(kRender)));

    EXPECT_EQ(controls("QM_HD_panelFusionRenderEnvironment"), "");
}

TEST_F(HelpdeskPanel, NeedsAWorkspace) { EXPECT_FALSE(tarnix::addHelpdeskPanel(nullptr)); }

}  // namespace
}  // namespace test_support
