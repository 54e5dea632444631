#include "tarnix/platform/screen.h"

#include "tests/support/temporary_folder.h"
#include "tests/support/test_display.h"
#include "tests/tarnix/helpdesk/pattern_window.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <optional>

using test_support::blackPicture;
using test_support::PatternWindow;
using test_support::Picture;

namespace tarnix::platform {
namespace {

/// Pictures of areas that the screen of the test, 800 by 600 pixels, fills in part. (What Wine
/// makes of such an area lacks the windows in it, so it is looked at here alone.)
class ScreenPictureOfX11 : public testing::Test {
protected:
    void SetUp() override {
        const char* const display = test_support::testDisplay();
        if (display == nullptr) return;
        before = host::environment::variable("DISPLAY");
        host::environment::setVariable("DISPLAY", display);
    }
    void TearDown() override { host::environment::setVariable("DISPLAY", before); }

    /// A picture from there on, by way of a file.
    [[nodiscard]] Picture take(int left, int top, int width, int height) const {
        const ScreenPicture picture(left, top, width, height, /*window=*/0);
        if (!picture) {
            return {};
        }
        picture.saveAsPng(folder.path() / "picture.png");
        return test_support::readPng(folder.path() / "picture.png");
    }

    const test_support::TemporaryFolder folder;
    std::optional<host::environment::Text> before;
};

TEST_F(ScreenPictureOfX11, HasBlackBeforeTheScreenAndAfterIt) {
    const PatternWindow window("any", 300, 200, 100, 60);
    Picture expected = blackPicture(2080, 1200);
    PatternWindow::draw(expected, 640 + 300, 300 + 200, 100, 60);
    EXPECT_EQ(difference(take(-640, -300, 2080, 1200), expected), "");
}

TEST_F(ScreenPictureOfX11, EndsWithTheScreen) {
    const PatternWindow window("any", 700, 500, 100, 100);
    Picture expected = blackPicture(150, 150);
    PatternWindow::draw(expected, 50, 50, 100, 100);
    EXPECT_EQ(difference(take(650, 450, 150, 150), expected), "");
}

TEST_F(ScreenPictureOfX11, IsBlackBesideTheScreen) {
    EXPECT_EQ(difference(take(800, 0, 20, 10), blackPicture(20, 10)), "");
}

TEST_F(ScreenPictureOfX11, IsNoneOfAnAreaWithoutAWidthOrHeight) {
    EXPECT_EQ(take(0, 0, 0, 10).width, 0);
    EXPECT_EQ(take(0, 0, 10, 0).width, 0);
}

}  // namespace
}  // namespace tarnix::platform
