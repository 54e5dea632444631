#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace test_support {
namespace {

/// Waits until a window is shown, or is not.
bool comesToBe(HWND window, BOOL shown) {
    for (int i = 0; i < 200 && ::IsWindowVisible(window) != shown; ++i) {
        ::Sleep(50);
    }
    return ::IsWindowVisible(window) == shown;
}

/// Runs a test of this program in a process with its own console window; its exit status.
DWORD runInNewConsole(const std::wstring& test) {
    std::array<wchar_t, 1024> program = {};
    ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
    std::wstring line = L"\"" + std::wstring(program.data()) + L"\" --gtest_filter=" + test;
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION child = {};
    if (::CreateProcessW(nullptr, line.data(), nullptr, nullptr, /*bInheritHandles=*/FALSE,
                         CREATE_NEW_CONSOLE, nullptr, nullptr, &start, &child) == FALSE) {
        return static_cast<DWORD>(-1);
    }
    DWORD status = static_cast<DWORD>(-1);
    ::WaitForSingleObject(child.hProcess, INFINITE);
    ::GetExitCodeProcess(child.hProcess, &status);
    ::CloseHandle(child.hThread);
    ::CloseHandle(child.hProcess);
    return status;
}

class ConsoleWindow : public HelpdeskTest {
protected:
    static constexpr const wchar_t* kIsOwn = L"CONSOLE_IS_OWN";
};

TEST_F(ConsoleWindow, IsHiddenByACaptureAndShownAgainWhenTheSessionEnds) {
    if (!host::environment::variable(kIsOwn)) {
        host::environment::setVariable(kIsOwn, L"1");
        EXPECT_EQ(runInNewConsole(L"ConsoleWindow.*"), 0U);
        host::environment::setVariable(kIsOwn, std::nullopt);
        return;
    }
    const HWND console = ::GetConsoleWindow();
    ASSERT_TRUE(comesToBe(console, TRUE));
    host::SessionOptions with = addinOptions();
    with.system.consoleMayHide = true;
    restart(with);
    ASSERT_TRUE(run());
    press("captureScreen");
    ASSERT_TRUE(comesToBe(console, FALSE));
    endSession();
    EXPECT_TRUE(comesToBe(console, TRUE));
}

}  // namespace
}  // namespace test_support
