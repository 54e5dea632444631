#include "tests/tarnix/commands/palette_fixture.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

namespace {

using namespace adsk::core;

constexpr const char* kCommand = "QM_TX_unitsConversion";
constexpr const char* kPalette = "unitsConversion";

const host::WindowShown kHostWindow = {"Autodesk Fusion 360 - Gearbox v3", {100, 50, 1300, 850}};

class UnitsConversion : public PaletteTest {
protected:
    UnitsConversion() { windows = {{"", {}}, {"Mail", {0, 0, 400, 300}}, kHostWindow}; }

    /// Starts over before other windows.
    void restartAt(std::vector<host::WindowShown> shown) {
        windows = std::move(shown);
        restart(options());
        ASSERT_TRUE(run());
    }
};

TEST_F(UnitsConversion, OpensAFloatingPaletteInTheLowerRightCornerOfTheHostsWindow) {
    session->press(kCommand);

    const Ptr<Palette> shown = palette(kPalette);
    ASSERT_TRUE(shown);
    // 1300 - 265 and 850 - 455.
    EXPECT_EQ(placeOf(shown), (std::vector<int>{1035, 395, 260, 400}));
    EXPECT_EQ(shown->name(), "Units Conversion");
    EXPECT_TRUE(shown->isVisible());
    EXPECT_EQ(shown->dockingState(), PaletteDockStateFloating);
    EXPECT_EQ(shown->dockingOption(), PaletteDockOptionsNone);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UnitsConversion, PaletteCanBeClosedAndResizedAndUsesTheOldBrowser) {
    session->press(kCommand);

    expectClosableResizableAndOld(kPalette);
}

TEST_F(UnitsConversion, SetToFloatOnceWhenItIsMade) {
    host::gate::reset();

    session->press(kCommand);
    session->press(kCommand);

    // A palette floats from the beginning in this host, and need not in another.
    EXPECT_EQ(host::gate::count("Palette::dockingState"), 1U);
}

TEST_F(UnitsConversion, ShowsThePageOfTheConverter) {
    session->press(kCommand);

    expectPage(kPalette, "/units-cmd.asp?app=Inventor");
}

TEST_F(UnitsConversion, AnotherWindowWithTheTextInItsTitleThatComesFirstTakesTheHostsPlace) {
    restartAt({{"Tips for Autodesk Fusion 360 users", {0, 0, 800, 600}}, kHostWindow});

    session->press(kCommand);

    EXPECT_EQ(placeOf(palette(kPalette)), (std::vector<int>{535, 145, 260, 400}));
}

TEST_F(UnitsConversion, SecondExecutionMovesThePaletteAlongAndRestoresItsSize) {
    session->press(kCommand);
    const Ptr<Palette> first = palette(kPalette);
    first->isVisible(false);
    first->setSize(500, 600);
    first->dockingOption(PaletteDockOptionsToVerticalOnly);
    host::SystemOverrides moved;
    moved.windows = std::vector<host::WindowShown>{{"Autodesk Fusion 360", {0, 0, 1920, 1000}}};
    host::system_overrides::set(moved);

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 1U);
    EXPECT_TRUE(first->isVisible());
    EXPECT_EQ(placeOf(first), (std::vector<int>{1655, 545, 260, 400}));
    EXPECT_EQ(first->dockingOption(), PaletteDockOptionsNone);
}

TEST_F(UnitsConversion, WithoutAWindowOfTheHostNothingHappensAtAll) {
    restartAt({{"Autodesk Fusion", {0, 0, 800, 600}}, {"fusion 360", {0, 0, 800, 600}}});
    host::gate::reset();

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 0U);
    EXPECT_EQ(host::gate::count("Application::get"), 0U);
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UnitsConversion, ThrowsWithoutTheHostsPalettes) {
    host::gate::refuse("UserInterface::palettes", 1);

    session->press(kCommand);

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnExecute");
}

TEST_F(UnitsConversion, PaletteThatTheHostRefusesIsLeftAlone) {
    host::gate::refuse("Palettes::add", 1);

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 0U);
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
