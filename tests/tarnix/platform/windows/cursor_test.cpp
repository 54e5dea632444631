#include "tarnix/platform/cursor.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace tarnix::platform {
namespace {

HCURSOR systemCursor(int number) { return ::LoadCursorW(nullptr, MAKEINTRESOURCEW(number)); }

TEST(WaitCursor, IsTheSystemsWhileItLives) {
    const HCURSOR cross = systemCursor(32515);  // IDC_CROSS
    const HCURSOR before = ::SetCursor(cross);
    {
        const WaitCursor waiting;
        EXPECT_EQ(::GetCursor(), systemCursor(32514));  // IDC_WAIT
    }
    EXPECT_EQ(::GetCursor(), cross);
    ::SetCursor(before);
}

TEST(WaitCursor, IsWantedOnceMoreWhileItLives) {
    const int wanted = ::ShowCursor(TRUE);
    {
        const WaitCursor waiting;
        EXPECT_EQ(::ShowCursor(TRUE), wanted + 2);
        ::ShowCursor(FALSE);
    }
    EXPECT_EQ(::ShowCursor(FALSE), wanted - 1);
}

}  // namespace
}  // namespace tarnix::platform
