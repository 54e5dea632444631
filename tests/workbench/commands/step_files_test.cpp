#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/support/real_files.h"
#include "tests/support/text.h"
#include "tests/workbench/workbench_fixture.h"

#include "host/session/environment.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <ostream>
#include <string>
#include <vector>

/// The main job, whole: a STEP assembly in, its parts list out.
namespace {

using test_support::firstLines;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::realFiles;
using test_support::Workbench;
using test_support::writeFile;

/// The indented lines of README.md from the first `line` on, without their indent.
std::string shownInReadme(const std::string& line) {
    const std::string readme = readFile(std::filesystem::path(PROJECT_FOLDER) / "README.md");
    std::string shown;
    for (std::size_t at = readme.find("\n    " + line); at != std::string::npos;) {
        const std::size_t end = readme.find('\n', at + 1);
        if (readme.compare(at + 1, 4, "    ") != 0 && end != at + 1) {
            break;
        }
        shown += end == at + 1 ? "\n" : readme.substr(at + 5, end - at - 4);
        at = end;
    }
    return shown;
}

class StepFile : public Workbench {};

TEST_F(StepFile, OfTheSamplesGivesTheListThatTheReadmeShows) {
    const std::string sample = std::string(PROJECT_FOLDER) + "/samples/camera-slider.step";

    const ProgramResult result = run({"bom", sample, "--out", out()});

    EXPECT_EQ(result.status, 0) << result.errors;
    const std::string shown = shownInReadme("   Pos.  Part Number");
    EXPECT_EQ(std::count(shown.begin(), shown.end(), '\n'), 13) << shown;
    EXPECT_EQ(firstLines(result.output, 13), shown);
}

TEST_F(StepFile, ThatTheAddinOpensIsWarnedOfToo) {
    const std::filesystem::path file = folder.path() / "cart.step";
    writeFile(file, drafts::step(drafts::product(10, "A", "Cart") +
                                 drafts::product(20, "W", "Wheel") + drafts::usage(30, 10, 20)));
    std::filesystem::create_directories(out());

    const ProgramResult result = run({"open-local", file.string(), "--out", out()});

    EXPECT_EQ(result.status, 0);
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_EQ(result.errors.rfind("warning: ", 0), 0U) << result.errors;
    EXPECT_NE(result.errors.find("has no placement for 1 usage"), std::string::npos)
        << result.errors;
}

TEST_F(StepFile, IsMeasuredByInfoWhereThatIsAskedFor) {
    const std::string sample = std::string(PROJECT_FOLDER) + "/samples/camera-slider.step";

    const ProgramResult tree = run({"info", sample});
    const ProgramResult measured = run({"info", sample, "--measure"});

    EXPECT_EQ(tree.status, 0) << tree.errors;
    EXPECT_NE(
        tree.output.find("Measures     not taken, and bodies not counted; --measure does both\n"),
        std::string::npos)
        << tree.output;
    EXPECT_EQ(tree.output.find("Bodies "), std::string::npos) << tree.output;
    EXPECT_EQ(measured.output.find("Measures"), std::string::npos) << measured.output;
    EXPECT_NE(measured.output.find("Volume       "), std::string::npos) << measured.output;
    // Counts and materials are the same.
    const auto counts = [](const std::string& output) {
        return output.substr(0, output.find("\nLength unit"));
    };
    const auto materials = [](const std::string& output) {
        return output.substr(output.find("\n\nMaterial"));
    };
    EXPECT_EQ(counts(tree.output), counts(measured.output));
    EXPECT_EQ(materials(tree.output), materials(measured.output));
}

TEST_F(StepFile, ComesThroughTheStandardInput) {
    const std::string sample = std::string(PROJECT_FOLDER) + "/samples/camera-slider.step";
    const std::string program = (host::environment::programFolder() / "tarnix-workbench").string();
    const std::filesystem::path output = folder.path() / "output";

    const int status =
        test_support::runRedirected("/bin/sh", {"-c", "cat \"$1\" | \"$0\" bom -", program, sample},
                                    output, folder.path() / "errors");

    EXPECT_EQ(status, 0) << readFile(folder.path() / "errors");
    EXPECT_EQ(firstLines(readFile(output), 13), shownInReadme("   Pos.  Part Number"));
}

/// Different plates under one root, each of some 150 entities.
std::string manyPlates(int count) {
    std::vector<samples::Product> products;
    samples::Product top = {.key = "top", .id = "TOP", .name = "Top"};
    for (int number = 0; number < count; ++number) {
        const std::string name = "Part " + std::to_string(number);
        const samples::Solid plate{{{samples::rectangle(10 + 0.01 * number, 20), 5}},
                                   {samples::circle(2)}};
        products.push_back({.key = name, .id = name, .name = name, .solid = plate});
        top.uses.push_back({name, {{0, 0, 10.0 * number}}});
    }
    products.push_back(top);
    return samples::stepFile("Top", products);
}

TEST_F(StepFile, IsReadByEightRunsAtOnce) {
    const std::string text = manyPlates(200);
    EXPECT_GT(std::count(text.begin(), text.end(), '='), 20'000);
    writeFile(folder.path() / "many.step", text);
    std::vector<std::future<ProgramResult>> runs;
    for (int number = 0; number < 8; ++number) {
        runs.push_back(std::async(std::launch::async, [file = path("many.step")] {
            return run({"bom", file, "--format", "csv"});
        }));
    }

    const ProgramResult first = runs.front().get();
    EXPECT_EQ(first.status, 0) << first.errors;
    // The captions, an empty line and the mass.
    EXPECT_EQ(std::count(first.output.begin(), first.output.end(), '\n'), 200 + 3);
    for (std::size_t number = 1; number < runs.size(); ++number) {
        const ProgramResult other = runs[number].get();
        EXPECT_EQ(other.status, 0) << other.errors;
        EXPECT_EQ(other.output, first.output);
    }
}

/// A real file and the occurrences in it, as counted in its text.
struct Counted {
    const char* file;
    std::ptrdiff_t occurrences;
};

void PrintTo(const Counted& counted, std::ostream* stream) { *stream << counted.file; }

class RealStepFile : public Workbench, public testing::WithParamInterface<Counted> {
protected:
    void SetUp() override {
        test_support::needRealFiles();
        Workbench::SetUp();
    }

    static std::string path(const char* name) { return (realFiles() / name).string(); }
};

TEST_P(RealStepFile, GivesALineForEachOccurrence) {
    const ProgramResult result =
        run({"bom", path(GetParam().file), "--tab", "model", "--expand", "all", "--format", "csv"});

    EXPECT_EQ(result.status, 0) << result.errors;
    // The captions, an empty line and the mass.
    EXPECT_EQ(std::count(result.output.begin(), result.output.end(), '\n'),
              GetParam().occurrences + 3);
}

TEST_P(RealStepFile, HasTheCountsInInfo) {
    const ProgramResult result = run({"info", path(GetParam().file)});

    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_NE(result.output.find("Occurrences  " + std::to_string(GetParam().occurrences) + "\n"),
              std::string::npos)
        << result.output;
}

INSTANTIATE_TEST_SUITE_P(
    Files, RealStepFile,
    testing::Values(Counted{"as1-oc-214.stp", 27}, Counted{"as1_pe_203.stp", 27},
                    Counted{"as1-oc-214-mat.stp", 27}, Counted{"s1-c5-214/s1-c5-214.stp", 16},
                    Counted{"MadMax_Core_MGN12H_DB_AH_v11.step", 87}, Counted{"ProMicro.step", 28},
                    Counted{"PCB_v3.5.step", 1413}, Counted{"G2A EBB36 v2.step", 642},
                    Counted{"PushDevice-Assembly.step", 67}, Counted{"bug31670_russian.stp", 17}));

class MalformedStepFile : public Workbench, public testing::WithParamInterface<const char*> {
protected:
    void SetUp() override {
        test_support::needRealFiles();
        Workbench::SetUp();
    }
};

TEST_P(MalformedStepFile, GetsOneLineAndNoList) {
    const std::string file = (realFiles() / "malformed" / GetParam()).string();

    const ProgramResult result = run({"bom", file, "--out", out()});

    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.output, "");
    EXPECT_TRUE(test_support::isOneLine(result.errors)) << result.errors;
    EXPECT_FALSE(std::filesystem::exists(out()));
}

INSTANTIATE_TEST_SUITE_P(Files, MalformedStepFile,
                         testing::Values("bug32314_corrupted.stp", "Ad054.stp", "M018.stp",
                                         "U008.stp"));

}  // namespace
