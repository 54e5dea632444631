#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

#include <cstdlib>

/// What the program does with the terminal.
namespace {

namespace fs = std::filesystem;
using test_support::kSmallDesign;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

using Terminal = test_support::WorkbenchWithReader;

TEST_F(Terminal, ShowsTheProgressOfReadingAndThenErasesIt) {
    readerIs(R"sh(
        echo '{"progress": {"stage": "Building", "fraction": 0.5}}'
        echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [{"id": "",
            "name": "Bar", "description": "", "shape": -1, "uses": []}]}}' | tr -d '\n'
        echo)sh");
    const std::string file = anyStep();
    const fs::path program = host::environment::programFolder() / "tarnix-workbench";
    const fs::path screen = folder.path() / "screen";

    const int status = test_support::runRedirected(
        "/usr/bin/script",
        {"--quiet", "--return", "--command", program.string() + " info " + file, screen.string()},
        folder.path() / "output", folder.path() / "errors");

    EXPECT_EQ(status, 0);
    const std::string shown = readFile(screen);
    const std::string erase = "\r\x1B[K";
    EXPECT_NE(shown.find(erase + "Building " + file + " 50 %" + erase + "a\r\n"), std::string::npos)
        << shown;
}

}  // namespace
