#include "tests/support/files.h"
#include "tests/support/test_display.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"
#include "tests/tarnix/helpdesk/pattern_window.h"

#include "host/session/system_overrides.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace test_support {
namespace {

constexpr const char* kHostTitle = "Autodesk Fusion 360";

/// Captures on the display of the test, which is 800 by 600 pixels large.
class ScreenCapture : public HelpdeskTest {
protected:
    void SetUp() override {
        const char* const display = testDisplay();
        if (display == nullptr) return;
        host::environment::setVariable(fs::path("DISPLAY").native(), fs::path(display).native());
        HelpdeskTest::SetUp();
    }

    [[nodiscard]] Picture picture() const { return readPng(supportFolder() / name(1)); }

    /// True if the pictures with these numbers are there, and the ones beside them are not.
    [[nodiscard]] bool hasPictures(int first, int last) const {
        return has(name(first)) && has(name(last)) && !has(name(first - 1)) && !has(name(last + 1));
    }

    static std::string name(int number) {
        const std::string digits = std::to_string(number);
        return "screen_" + std::string(3 - std::min<std::size_t>(digits.size(), 3), '0') + digits +
               ".png";
    }

    void startWithScreen(const host::ScreenRectangle& area) {
        host::SessionOptions with = addinOptions();
        with.system.screen = area;
        restart(with);
        ASSERT_TRUE(run());
    }
};

TEST_F(ScreenCapture, TakesTheNumbersInTurn) {
    press("captureScreen");
    EXPECT_TRUE(hasPictures(1, 1));
    press("captureScreen");
    EXPECT_TRUE(hasPictures(1, 2));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ScreenCapture, FillsAGapInTheNumbersFirst) {
    press("captureScreen");
    press("captureScreen");
    fs::remove(supportFolder() / "screen_001.png");
    press("captureScreen");
    EXPECT_TRUE(hasPictures(1, 2));
    EXPECT_EQ(difference(picture(), blackPicture(800, 600)), "");
}

TEST_F(ScreenCapture, EndsWithAMessageWhenAllNumbersAreTaken) {
    fs::create_directory(supportFolder());
    for (int number = 1; number <= 998; ++number) {
        put(name(number));
    }
    press("captureScreen");
    EXPECT_EQ(
        shownMessages(),
        "Error message (4): The allowed count of images in the directory has been exceeded\n");
    EXPECT_TRUE(hasPictures(1, 998));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ScreenCapture, MakesTheFolderAgainAfterItsDeletion) {
    press("openFolder");
    press("clearFolder");
    EXPECT_FALSE(fs::exists(supportFolder()));
    press("captureScreen");
    EXPECT_TRUE(hasPictures(1, 1));
}

TEST_F(ScreenCapture, HidesTheConsoleAndWaitsUntilItIsGone) {
    press("captureScreen");
    EXPECT_EQ(host::system_overrides::consoleHidings(), 1);
    EXPECT_EQ(host::system_overrides::sleeps(), std::vector<int>{250});
}

TEST_F(ScreenCapture, TakesANameWhoseFileCannotBeReadForFreeAndLeavesItAsItIs) {
    fs::create_directories(supportFolder() / name(1));
    press("captureScreen");
    EXPECT_TRUE(fs::is_directory(supportFolder() / name(1)));
    EXPECT_FALSE(has(name(2)));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ScreenCapture, IsNotSavedWhereTheFolderCannotBeMade) {
    writeFile(supportFolder(), "a file of this name");
    press("captureScreen");
    EXPECT_EQ(readFile(supportFolder()), "a file of this name");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(ScreenCapture, IsOfTheWholeScreen) {
    const PatternWindow window("any", 300, 200, 100, 60);
    press("captureScreen");
    Picture expected = blackPicture(800, 600);
    PatternWindow::draw(expected, 300, 200, 100, 60);
    EXPECT_EQ(difference(picture(), expected), "");
}

TEST_F(ScreenCapture, IsLargerThanTheDesktopWithAMonitorToTheLeft) {
    // A monitor of 640 by 600 to the left of one of 800 by 600 at the origin: 1440 pixels from -640
    // on.
    startWithScreen({-640, 0, 800, 600});
    press("captureScreen");
    EXPECT_EQ(picture().width, 1440 + 640);
    EXPECT_EQ(picture().height, 600);
}

TEST_F(ScreenCapture, IsLargerThanTheDesktopWithAMonitorAbove) {
    startWithScreen({0, -300, 800, 600});
    press("captureScreen");
    EXPECT_EQ(picture().width, 800);
    EXPECT_EQ(picture().height, 900 + 300);
}

TEST_F(ScreenCapture, IsSmallerWhereTheScreenBeginsAfterTheOrigin) {
    startWithScreen({100, 50, 800, 600});
    const PatternWindow window("any", 300, 200, 100, 60);
    press("captureScreen");
    // 700 and 550 pixels from there on, less 100 and 50.
    Picture expected = blackPicture(600, 500);
    PatternWindow::draw(expected, 300 - 100, 200 - 50, 100, 60);
    EXPECT_EQ(difference(picture(), expected), "");
}

using WindowCapture = ScreenCapture;

TEST_F(WindowCapture, IsOfTheInsideOfTheHostsWindow) {
    const PatternWindow window(kHostTitle, 120, 80, 200, 100);
    press("captureFusion");
    Picture expected = blackPicture(200, 100);
    PatternWindow::draw(expected, 0, 0, 200, 100);
    EXPECT_EQ(difference(picture(), expected), "");
    EXPECT_EQ(host::system_overrides::consoleHidings(), 0);
    EXPECT_TRUE(host::system_overrides::sleeps().empty());
}

TEST_F(WindowCapture, FindsTheHostsWindowInLargeAndSmallLetters) {
    const PatternWindow window("AUTODESK fusion 360", 120, 80, 200, 100);
    press("captureFusion");
    EXPECT_EQ(picture().width, 200);
    EXPECT_EQ(picture().height, 100);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(WindowCapture, PassesOverAWindowWithALongerTitle) {
    const PatternWindow window(std::string(kHostTitle) + " (Personal)", 120, 80, 200, 100);
    press("captureFusion");
    EXPECT_FALSE(fs::exists(supportFolder()));
}

TEST_F(WindowCapture, WithoutTheHostsWindowLeavesNothing) {
    press("captureFusion");
    EXPECT_FALSE(fs::exists(supportFolder()));
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(WindowCapture, IsOfTheWindowThatTheSessionNames) {
    host::SessionOptions with = addinOptions();
    with.system.windows = std::vector<host::WindowShown>{{kHostTitle, {10, 20, 40, 60}}};
    restart(with);
    ASSERT_TRUE(run());
    press("captureFusion");
    EXPECT_EQ(picture().width, 30);
    EXPECT_EQ(picture().height, 40);
}

}  // namespace
}  // namespace test_support
