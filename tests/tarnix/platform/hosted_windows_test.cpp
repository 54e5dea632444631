#include "tarnix/platform/screen.h"
#include "tarnix/platform/top_windows.h"

#include <Core/OSMacros.h>
#include <StandIn/Process.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

StandInAnswer answer = StandInAnswer::Done;
std::string seen;

}  // namespace

// What a stand-in process exports to the modules that it loads: two windows, the foremost first.
extern "C" XI_EXPORT StandInAnswer standin_visitWindows(StandInWindowVisitor visit, void* context) {
    const StandInArea front = {10, 20, 40, 60};
    const StandInArea back = {-5, 0, 5, 10};
    if (answer == StandInAnswer::Done && visit(context, "front", &front) != 0) {
        visit(context, "Zadn\u00ED \u00B5", &back);
    }
    return answer;
}

namespace tarnix::platform {
namespace {

class HostedWindows : public testing::Test {
protected:
    HostedWindows() {
        answer = StandInAnswer::Done;
        seen.clear();
    }

    /// Notes a window: its title, and where its inside begins.
    static void note(const TopWindow& window) {
        const ScreenArea area = window.clientArea();
        seen += window.title + " " + std::to_string(area.left) + " " + std::to_string(area.top) +
                " " + std::to_string(area.right) + " " + std::to_string(area.bottom) + "\n";
    }
};

TEST_F(HostedWindows, AreThoseOfTheProcessTheForemostFirst) {
    visitTopWindows([](const TopWindow& window) {
        note(window);
        return true;
    });
    EXPECT_EQ(seen, "front 10 20 40 60\nZadn\u00ED \u00B5 -5 0 5 10\n");
}

TEST_F(HostedWindows, AreSeenNoLongerThanTheVisitorWants) {
    visitTopWindows([](const TopWindow& window) {
        note(window);
        return false;
    });
    EXPECT_EQ(seen, "front 10 20 40 60\n");
}

TEST_F(HostedWindows, EndWithWhatTheVisitorThrows) {
    EXPECT_THROW(visitTopWindows([](const TopWindow& window) -> bool {
                     note(window);
                     throw std::out_of_range("window");
                 }),
                 std::out_of_range);
    EXPECT_EQ(seen, "front 10 20 40 60\n");
}

TEST_F(HostedWindows, AreThoseOfTheMachineWhereTheProcessDoesNotSay) {
    answer = StandInAnswer::NotHandled;
    visitTopWindows([](const TopWindow& window) {
        seen += window.title + "\n";
        return true;
    });
    EXPECT_EQ(seen.find("front\n"), std::string::npos) << seen;
}

TEST_F(HostedWindows, AreFoundInLargeAndSmallLetters) {
    const WindowOnScreen window = findWindow("FRONT");
    EXPECT_EQ(window.inside, (ScreenArea{10, 20, 40, 60}));
    EXPECT_EQ(window.handle, 0U);
    EXPECT_EQ(findWindow("zADN\u00CD \u00B5").inside, (ScreenArea{-5, 0, 5, 10}));
}

TEST_F(HostedWindows, AreFoundByTheirWholeTitles) {
    EXPECT_EQ(findWindow("fron").inside, ScreenArea());
    EXPECT_EQ(findWindow("front ").inside, ScreenArea());
    // The capital of the micro sign is another letter's.
    EXPECT_EQ(findWindow("ZADN\u00CD \u039C").inside, ScreenArea());
}

TEST_F(HostedWindows, AreLookedForOnTheMachineWhereTheProcessDoesNotSay) {
    answer = StandInAnswer::NotHandled;
    EXPECT_EQ(findWindow("front").inside, ScreenArea());
}

}  // namespace
}  // namespace tarnix::platform
