#include "tests/tarnix/bom/behaviour/killed_export.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"
#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <filesystem>
#include <memory>
#include <string>
#include <system_error>
#include <thread>

namespace test_support {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* kPlaceVariable = L"KILLED_EXPORT_PLACE";
constexpr std::chrono::seconds kLongest(60);

using Handle = std::unique_ptr<void, decltype(&::CloseHandle)>;

class KilledExport : public BomDialogTest {
protected:
    /// This program once more, which exports alone.
    static Handle startExporting() {
        std::array<wchar_t, MAX_PATH> program = {};
        ::GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size()));
        std::wstring line = L"\"" + std::wstring(program.data()) +
                            L"\" --gtest_filter=KilledExport.DISABLED_Exporting "
                            L"--gtest_also_run_disabled_tests";
        STARTUPINFOW start = {};
        start.cb = sizeof start;
        PROCESS_INFORMATION made = {};
        if (::CreateProcessW(program.data(), line.data(), nullptr, nullptr,
                             /*bInheritHandles=*/FALSE, 0, nullptr, nullptr, &start,
                             &made) == FALSE) {
            return {nullptr, &::CloseHandle};
        }
        ::CloseHandle(made.hThread);
        return {made.hProcess, &::CloseHandle};
    }

    static bool hasEnded(const Handle& process) {
        return ::WaitForSingleObject(process.get(), 0) == WAIT_OBJECT_0;
    }

    /// Waits until `isSo`; false where the process ended before, or it takes too long.
    template <class Condition>
    static bool waitUntil(const Handle& process, Condition isSo) {
        const auto end = std::chrono::steady_clock::now() + kLongest;
        while (!isSo()) {
            if (hasEnded(process) || std::chrono::steady_clock::now() > end) {
                return false;
            }
            std::this_thread::yield();
        }
        return true;
    }

    static std::uintmax_t sizeOf(const fs::path& file) {
        std::error_code missing;
        const std::uintmax_t size = fs::file_size(file, missing);
        return missing ? 0 : size;
    }

    /// What the killed process has written; empty where its export was over before.
    static std::string exportAndKill() {
        const TemporaryFolder place;
        ::SetEnvironmentVariableW(kPlaceVariable, place.path().c_str());
        const Handle process = startExporting();
        ::SetEnvironmentVariableW(kPlaceVariable, nullptr);
        if (!process || !waitUntil(process, [&] { return place.has("path"); })) {
            ADD_FAILURE() << "the other process does not export";
            return {};
        }
        const fs::path exported = place.read("path");
        const bool isInItsMidst =
            waitUntil(process, [&] { return sizeOf(exported) > killed_export::kSomeLines; });
        ::TerminateProcess(process.get(), 1);
        ::WaitForSingleObject(process.get(), INFINITE);
        const std::string written = isInItsMidst ? readFile(exported) : "";
        std::error_code ignored;
        fs::remove_all(exported.parent_path().parent_path(), ignored);
        return written;
    }
};

/// What the other process does, at the wish of `LeavesWholeLines` alone.
TEST_F(KilledExport, DISABLED_Exporting) {
    std::array<wchar_t, MAX_PATH> place = {};
    ASSERT_NE(
        ::GetEnvironmentVariableW(kPlaceVariable, place.data(), static_cast<DWORD>(place.size())),
        0U);
    open(killed_export::outline());
    showModel();
    const fs::path named(place.data());
    writeFile(named / "half", csvFile().string());
    fs::rename(named / "half", named / "path");
    exportBom();
}

TEST_F(KilledExport, LeavesWholeLines) {
    std::string written;
    for (int attempt = 0; attempt < killed_export::kAttempts && written.empty(); ++attempt) {
        written = exportAndKill();
    }
    ASSERT_FALSE(written.empty()) << "each export was over before it was killed";

    killed_export::expectWholeLines(written);
}

}  // namespace
}  // namespace test_support
