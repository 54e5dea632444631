#include "tests/tarnix/commands/palette_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

namespace {

using namespace adsk::core;

constexpr const char* kCommand = "QM_TX_onLineLibrary";
constexpr const char* kPalette = "onLineModels";

using OnLineModels = PaletteTest;

TEST_F(OnLineModels, OpensAPaletteDockedAtTheLeft) {
    session->press(kCommand);

    const Ptr<Palette> shown = palette(kPalette);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->name(), "On-Line models");
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(shown->dockingState(), PaletteDockStateLeft);
    EXPECT_EQ(shown->width(), 350);
    EXPECT_EQ(shown->height(), 300);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OnLineModels, ShowsThePageOfTheMakersSite) {
    session->press(kCommand);

    expectPage(kPalette, "/download/CAM/f360/fusion_pruvodce.htm");
}

TEST_F(OnLineModels, PaletteCanBeClosedAndResizedAndUsesTheOldBrowser) {
    session->press(kCommand);

    expectClosableResizableAndOld(kPalette);
}

TEST_F(OnLineModels, SecondExecutionCreatesNoSecondPaletteAndMakesTheFirstOneVisibleAgain) {
    session->press(kCommand);
    const Ptr<Palette> first = palette(kPalette);
    first->isVisible(false);
    first->setPosition(11, 22);
    first->setSize(333, 444);

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 1U);
    EXPECT_TRUE(palette(kPalette) == first);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(placeOf(first), (std::vector<int>{11, 22, 333, 444}));
    EXPECT_EQ(first->dockingState(), PaletteDockStateFloating);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OnLineModels, SecondExecutionLeavesItDockedWhereItIs) {
    session->press(kCommand);
    palette(kPalette)->dockingState(PaletteDockStateRight);

    session->press(kCommand);

    EXPECT_EQ(palette(kPalette)->dockingState(), PaletteDockStateRight);
}

class OnLineModelsWithout : public OnLineModels, public testing::WithParamInterface<const char*> {};

TEST_P(OnLineModelsWithout, ShowsNothing) {
    host::gate::refuse(GetParam(), 1);

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 0U);
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

INSTANTIATE_TEST_SUITE_P(EachCall, OnLineModelsWithout,
                         testing::Values("Application::get", "Application::userInterface",
                                         "UserInterface::palettes"));

TEST_F(OnLineModels, StopRemovesThePalette) {
    session->press(kCommand);

    stop();

    EXPECT_EQ(palettes()->count(), 0U);
    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in stop");
}

}  // namespace
