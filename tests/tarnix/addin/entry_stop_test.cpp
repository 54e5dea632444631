#include "tests/tarnix/addin/registration_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

namespace tarnix {
extern "C" bool stop(const char* context);
}

namespace test_support {
namespace {

class Stop : public AddinUiTest {};

TEST_F(Stop, LeavesOpenLocalFileAlone) {
    stop();
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");

    EXPECT_EQ(present(), kOpenLocalFile);
}

TEST_F(Stop, ThrowsAtItsEndWhereTheHostHasNoRepeatControl) {
    EXPECT_FALSE(stop());

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");
}

TEST_F(Stop, DeletesThePalettesThatAreThere) {
    const adsk::core::Ptr<adsk::core::Palettes> palettes = ui()->palettes();
    ASSERT_TRUE(palettes->add("unitsConversion", "Units", "", true, true, true));
    ASSERT_TRUE(palettes->add("onLineModels", "Models", "", true, true, true));

    stop();
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");

    EXPECT_FALSE(palettes->itemById("unitsConversion"));
    EXPECT_FALSE(palettes->itemById("onLineModels"));
}

TEST_F(Stop, LeavesOtherPalettesAlone) {
    const adsk::core::Ptr<adsk::core::Palettes> palettes = ui()->palettes();
    ASSERT_TRUE(palettes->add("somebodyElses", "Other", "", true, true, true));

    stop();
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");

    EXPECT_TRUE(palettes->itemById("somebodyElses"));
}

class StopBeforeRun : public UnstartedAddinTest {};

TEST_F(StopBeforeRun, Succeeds) {
    EXPECT_TRUE(stop());

    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StopBeforeRun, ReleasesTheApplicationOfARunThatFoundNoUserInterface) {
    host::gate::reset();
    host::gate::refuse("Application::userInterface", 1);

    EXPECT_FALSE(run());
    EXPECT_TRUE(stop());

    EXPECT_EQ(uncaughtExceptions(), "");
}

class StopWithRepeatControl : public AddinUiTest {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions with = addinOptions();
        with.host.repeatControl = true;
        return with;
    }
};

TEST_F(StopWithRepeatControl, Succeeds) {
    EXPECT_TRUE(stop());

    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(present(), kOpenLocalFile);
}

TEST_F(StopWithRepeatControl, LetsTheHostGo) {
    ASSERT_TRUE(stop());
    host::gate::reset();

    EXPECT_TRUE(stop());

    // Nothing is asked of the host any more.
    EXPECT_EQ(host::gate::total(), 0U);
}

TEST_F(StopWithRepeatControl, LetsRunSucceedAgain) {
    const std::string before = present();
    ASSERT_TRUE(stop());

    EXPECT_TRUE(run());

    EXPECT_EQ(present(), before);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(StopWithRepeatControl, LetsRunPlaceTheHelpdeskAgain) {
    const std::string before = controls("QM_HD_panelFusionSolidEnvironment");
    ASSERT_TRUE(stop());

    ASSERT_TRUE(run());

    EXPECT_EQ(controls("QM_HD_panelFusionSolidEnvironment"), before);
}

TEST_F(StopWithRepeatControl, LeavesOpenLocalFileWithItsFirstRegistration) {
    const adsk::core::Ptr<adsk::core::CommandDefinition> first = definition(kOpenLocalFile);
    ASSERT_TRUE(stop());
    host::gate::reset();

    ASSERT_TRUE(run());

    EXPECT_TRUE(definition(kOpenLocalFile) == first);
    // One less than there are: its new object got no definition to subscribe.
    EXPECT_EQ(host::gate::count("CommandDefinition::commandCreated"), kCommandCount - 1);
}

class StopWithoutUserInterface : public RegistrationTest {};

TEST_F(StopWithoutUserInterface, ReleasesTheApplication) {
    tarnix::ui = nullptr;

    EXPECT_TRUE(tarnix::stop(nullptr));

    EXPECT_FALSE(tarnix::app);
}

}  // namespace
}  // namespace test_support
