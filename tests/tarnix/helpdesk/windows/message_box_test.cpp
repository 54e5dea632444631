#include "tarnix/platform/native.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>

namespace tarnix::platform {
namespace {

/// What the user finds in a message box.
struct Seen {
    std::wstring text;
    bool hasOk = false;
    bool hasCancel = false;
};

BOOL CALLBACK keepText(HWND child, LPARAM context) {
    std::array<wchar_t, 256> text = {};
    ::GetWindowTextW(child, text.data(), static_cast<int>(text.size()));
    const std::wstring found = text.data();
    auto& kept = *reinterpret_cast<std::wstring*>(context);
    kept = found.size() > kept.size() ? found : kept;
    return TRUE;
}

/// Waits for a box with this title, reads it and closes it.
Seen closeBox(const wchar_t* title) {
    Seen seen;
    HWND box = nullptr;
    for (int i = 0; i < 600 && box == nullptr; ++i) {
        ::Sleep(50);
        box = ::FindWindowW(nullptr, title);
    }
    ::EnumChildWindows(box, keepText, reinterpret_cast<LPARAM>(&seen.text));
    seen.hasOk = ::GetDlgItem(box, IDOK) != nullptr || ::GetDlgItem(box, IDCANCEL) != nullptr;
    seen.hasCancel = ::GetDlgItem(box, IDOK) != nullptr && ::GetDlgItem(box, IDCANCEL) != nullptr;
    ::PostMessageW(box, WM_CLOSE, 0, 0);
    return seen;
}

TEST(MessageBoxOfWindows, ShowsItsTextUntilItIsClosed) {
    Seen seen;
    std::thread person([&seen] { seen = closeBox(L"Information"); });
    native::showMessageBox("Target directory does not exist.", "Information",
                           MessageStyle::Information);
    person.join();
    EXPECT_EQ(seen.text, L"Target directory does not exist.");
    EXPECT_TRUE(seen.hasOk);
    EXPECT_FALSE(seen.hasCancel);
}

}  // namespace
}  // namespace tarnix::platform
