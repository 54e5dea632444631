#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

#include <cstdlib>

/// What the program does with the terminal.
namespace test_support {
namespace {

namespace fs = std::filesystem;

/// The program on a terminal, reading a file with a reader that reports half of its progress.
class Terminal : public WorkbenchWithReader {
protected:
    void SetUp() override {
        WorkbenchWithReader::SetUp();
        variables.set("TERM", "xterm");
        readerIs(R"sh(
        echo '{"progress": {"stage": "Building", "fraction": 0.5}}'
        echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [{"id": "",
            "name": "Bar", "description": "", "shape": -1, "uses": []}]}}' | tr -d '\n'
        echo)sh");
    }

    /// All that the terminal of that width was sent by "info FILE".
    [[nodiscard]] std::string shownAt(int columns, const std::string& file) const {
        const fs::path program = host::environment::programFolder() / "tarnix-workbench";
        const fs::path screen = folder.path() / "screen";
        const int status = runRedirected(
            "/usr/bin/script",
            {"--quiet", "--return", "--command",
             "stty cols " + std::to_string(columns) + "; " + program.string() + " info " + file,
             screen.string()},
            folder.path() / "output", folder.path() / "errors");
        EXPECT_EQ(status, 0);
        return readFile(screen);
    }
};

const std::string kErase = "\r\x1B[K";

TEST_F(Terminal, ShowsTheProgressOfReadingAndThenErasesIt) {
    const std::string file = anyStep();

    const std::string shown = shownAt(500, file);

    EXPECT_NE(shown.find(kErase + "Building " + file + " 50 %" + kErase + "a\r\n"),
              std::string::npos)
        << shown;
}

TEST_F(Terminal, ShowsAsMuchOfTheProgressAsFitsInOneLine) {
    const std::string file = anyStep();

    const std::string shown = shownAt(20, file);

    // 19 columns: the last one is left free.
    EXPECT_NE(shown.find(kErase + "Building " + file.substr(0, 7) + "..." + kErase),
              std::string::npos)
        << shown;
}

TEST_F(Terminal, ShowsNoProgressWhereLinesCannotBeOverwritten) {
    variables.set("TERM", "dumb");

    const std::string shown = shownAt(500, anyStep());

    EXPECT_EQ(shown.find('\x1B'), std::string::npos) << shown;
    EXPECT_EQ(shown.find("Building"), std::string::npos) << shown;
}

}  // namespace
}  // namespace test_support
