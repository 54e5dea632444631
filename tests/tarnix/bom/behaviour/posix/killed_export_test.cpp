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

    static std::string lines(int count) {
        std::string text = "Pos.;Part Number;BOM Structure;\r\n";
        for (int i = 1; i <= count; ++i) {
            text += std::to_string(i) + ";P-" + std::to_string(i) + ";Produce;\r\n";
        }
        return text;
    }
};

constexpr int kRows = 4000;

TEST_F(KilledExport, LeavesWholeLines) {
    std::string outline;
    for (int i = 1; i <= kRows; ++i) {
        outline += "\n    Part " + std::to_string(i) + "  number=P-" + std::to_string(i);
    }
    open(outline);
    showModel();
    const pid_t exporting = ::fork();
    if (exporting == 0) {
        exportBom();
        ::_exit(0);
    }
    constexpr std::uintmax_t kSomeLines = 200;
    ASSERT_TRUE(killAt(exporting, kSomeLines)) << "the export was over before it was killed";

    const std::string text = csv();
    const std::string all = lines(kRows);
    EXPECT_GT(text.size(), kSomeLines);
    EXPECT_LT(text.size(), all.size());
    EXPECT_EQ(text, all.substr(0, text.size()));
    EXPECT_TRUE(text.ends_with("\r\n")) << text.substr(text.rfind('\n') + 1);
}

}  // namespace
}  // namespace test_support
