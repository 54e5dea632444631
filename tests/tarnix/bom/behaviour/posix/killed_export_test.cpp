#include "tests/tarnix/bom/behaviour/killed_export.h"
#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <string>
#include <system_error>

namespace test_support {
namespace {

/// An export in another process, which is killed in its midst.
class KilledExport : public BomDialogTest {
protected:
    /// Waits until the file has more than `size` bytes, and kills the process. False where that
    /// ended by itself.
    [[nodiscard]] bool killAt(pid_t process, std::uintmax_t size) const {
        std::error_code missing;
        int status = 0;
        while (true) {
            const std::uintmax_t written = std::filesystem::file_size(csvFile(), missing);
            if (!missing && written > size) {
                break;
            }
            if (::waitpid(process, &status, WNOHANG) == process) {
                return false;
            }
        }
        ::kill(process, SIGKILL);
        return ::waitpid(process, &status, 0) == process && WIFSIGNALED(status);
    }

    /// False where the export was over before it could be killed.
    [[nodiscard]] bool exportAndKill() {
        std::error_code missing;
        std::filesystem::remove(csvFile(), missing);
        const pid_t exporting = ::fork();
        if (exporting == 0) {
            exportBom();
            ::_exit(0);
        }
        return killAt(exporting, killed_export::kSomeLines);
    }
};

TEST_F(KilledExport, LeavesWholeLines) {
    open(killed_export::outline());
    showModel();
    bool wasKilled = false;
    for (int attempt = 0; attempt < killed_export::kAttempts && !wasKilled; ++attempt) {
        wasKilled = exportAndKill();
    }
    ASSERT_TRUE(wasKilled) << "each export was over before it was killed";

    killed_export::expectWholeLines(csv());
}

}  // namespace
}  // namespace test_support
