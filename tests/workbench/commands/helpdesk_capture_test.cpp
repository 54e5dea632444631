#include "tests/support/test_display.h"
#include "tests/tarnix/helpdesk/pattern_window.h"
#include "tests/workbench/helpdesk_fixture.h"

using test_support::PatternWindow;
using test_support::Picture;

namespace {

/// On the display of the test, which is 800 by 600 pixels large.
class HelpdeskCapture : public Helpdesk {
protected:
    void SetUp() override {
        const char* const display = test_support::testDisplay();
        if (display == nullptr) return;
        Helpdesk::SetUp();
        variables.set("DISPLAY", std::filesystem::path(display));
    }
};

}  // namespace

TEST_F(HelpdeskCapture, AreOfTheScreenAndOfTheHostsWindow) {
    const PatternWindow window("Autodesk Fusion 360", 300, 200, 100, 60);

    const auto result = helpdesk({"capture-screen", "capture-host"});

    EXPECT_EQ(result.status, 0) << result.errors;
    Picture screen = test_support::blackPicture(800, 600);
    PatternWindow::draw(screen, 300, 200, 100, 60);
    EXPECT_EQ(difference(test_support::readPng(support() / "screen_001.png"), screen), "");
    Picture inside = test_support::blackPicture(100, 60);
    PatternWindow::draw(inside, 0, 0, 100, 60);
    EXPECT_EQ(difference(test_support::readPng(support() / "screen_002.png"), inside), "");
}
