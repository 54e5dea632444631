#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

namespace fs = std::filesystem;
using test_support::ProgramResult;

namespace {

/// Returns a frame that holds a bolt and a nut, each with a shape of its own.
constexpr const char* kTwoShapes = R"sh(
component() {
    echo '{"id": "", "name": "'$1'", "description": "", "shape": '$2', "bodies": 1,' \
        '"material": "Steel", "density": 0.00785, "uses": ['$3']}'
}
use() { echo '{"component": '$1', "placement": [1,0,0,0, 0,1,0,0, 0,0,1,0]}'; }
frame=$(component Frame -1 "$(use 1), $(use 2)")
echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [' \
    "$frame, $(component Bolt 0), $(component Nut 1)" ']}}'
read request
)sh";

using Measuring = test_support::WorkbenchWithReader;

/// The line with which a file is refused, given what went wrong and which components it concerns.
std::string unmeasured(const std::string& file, const std::string& reason,
                       const std::string& components) {
    return "tarnix-workbench: " + file + ": a shape cannot be measured: " + reason + "; " +
           components + " would have no mass\n";
}

}  // namespace

TEST_F(Measuring, ACrashIsNoMassOfZero) {
    readerIs(std::string(kTwoShapes) + "kill -SEGV $$");
    const std::string file = anyStep();

    const ProgramResult result = run({"bom", file, "--out", out()});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, unmeasured(file, "the reader crashed (Segmentation fault)",
                                        "\"Bolt\" and 1 other component"));
    EXPECT_EQ(result.output, "");
    EXPECT_FALSE(fs::exists(folder.path() / "out"));
    EXPECT_FALSE(fs::exists(addinCopy() / "TarnixBOM.csv"));
}

TEST_F(Measuring, AShapeThatTakesTooLongIsNoMassOfZero) {
    readerIs(std::string(kTwoShapes) + "exec sleep 60");
    const std::string file = anyStep();

    const ProgramResult result = run({"bom", file, "--max-seconds", "1"});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, unmeasured(file, "the reader took longer than 1 seconds",
                                        "\"Bolt\" and 1 other component"));
    EXPECT_EQ(result.output, "");
}

TEST_F(Measuring, OneShapeThatCannotBeMeasuredNamesItsComponent) {
    readerIs(std::string(kTwoShapes) + R"(
        echo '{"error": "the shell is open"}'
        while read request; do echo '{"area": 6, "volume": 1, "min": [0,0,0], "max": [1,1,1]}'; done)");
    const std::string file = anyStep();

    const ProgramResult result = run({"bom", file});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.errors, unmeasured(file, "the shell is open", "\"Bolt\""));
}

TEST_F(Measuring, ShapesThatCanBeMeasuredMakeTheTotal) {
    readerIs(std::string(kTwoShapes) + R"(
        echo '{"area": 6, "volume": 1}'
        while read request; do echo '{"area": 6, "volume": 1, "min": [0,0,0], "max": [1,1,1]}'; done)");

    const ProgramResult result = run({"bom", anyStep()});

    EXPECT_EQ(result.status, 0) << result.errors;
    // Two of 1 cm3, of steel of 7.85 g/cm3.
    EXPECT_NE(result.output.find("Total mass of structure BOM [kg] : 0.016\n"), std::string::npos)
        << result.output;
}
