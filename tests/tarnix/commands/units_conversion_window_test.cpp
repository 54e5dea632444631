// Units Conversion at real windows, on the test's display of 800 by 600 pixels.

#include "tests/support/test_display.h"
#include "tests/tarnix/commands/framed_window.h"
#include "tests/tarnix/commands/palette_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using test_support::FramedWindow;
using Numbers = std::vector<int>;

constexpr const char* kCommand = "QM_TX_unitsConversion";
constexpr const char* kPalette = "unitsConversion";

class UnitsConversionAtAWindow : public PaletteTest {
protected:
    void SetUp() override {
        const char* const display = test_support::testDisplay();
        if (display == nullptr) return;
        host::environment::setVariable(std::filesystem::path("DISPLAY").native(),
                                       std::filesystem::path(display).native());
        PaletteTest::SetUp();
    }

    /// As the system has them.
    [[nodiscard]] host::SessionOptions options() const override {
        return test_support::addinOptions();
    }

    [[nodiscard]] Numbers place() const { return placeOf(palette(kPalette)); }
};

TEST_F(UnitsConversionAtAWindow, PutsThePaletteIntoTheCornerOfItsInside) {
    const FramedWindow window("Autodesk Fusion 360 - Gearbox", 100, 50, 600, 500);

    session->press(kCommand);

    // 700 - 265 and 550 - 455.
    EXPECT_EQ(place(), (Numbers{435, 95, 260, 400}));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(UnitsConversionAtAWindow, MovesThePaletteAlongAndRestoresItsSize) {
    const FramedWindow window("Autodesk Fusion 360", 100, 50, 600, 500);
    session->press(kCommand);
    palette(kPalette)->setSize(500, 300);

    window.move(40, 60, 400, 440);
    session->press(kCommand);

    // 440 - 265 and 500 - 455.
    EXPECT_EQ(place(), (Numbers{175, 45, 260, 400}));
}

TEST_F(UnitsConversionAtAWindow, TakesAForemostWindowOfTheSameTitleForTheHosts) {
    const FramedWindow window("Autodesk Fusion 360", 100, 50, 600, 500);
    const FramedWindow unrelated("Mail", 10, 40, 300, 300);
    const FramedWindow inFront("How to use Autodesk Fusion 360", 20, 60, 300, 400);

    session->press(kCommand);

    // 320 - 265 and 460 - 455.
    EXPECT_EQ(place(), (Numbers{55, 5, 260, 400}));
}

TEST_F(UnitsConversionAtAWindow, DoesNothingWithoutAWindowOfThatTitle) {
    const FramedWindow window("Autodesk", 100, 50, 600, 500);

    session->press(kCommand);

    EXPECT_EQ(palettes()->count(), 0U);
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
