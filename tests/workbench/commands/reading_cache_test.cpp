#include "host/import/reader_libraries.h"
#include "samples/samples.h"
#include "tests/host/import/drafts.h"
#include "tests/support/real_files.h"
#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <fstream>
#include <thread>

namespace {

namespace fs = std::filesystem;
using test_support::ProgramResult;
using Arguments = std::vector<std::string>;

/// Runs with the true reader, each start of which is counted.
class ReadingCacheInRuns : public test_support::WorkbenchWithReader {
protected:
    void SetUp() override {
        WorkbenchWithReader::SetUp();
        const std::string reader = host::toUtf8(host::environment::programFolder() / "step-reader");
        readerIs("echo \"$@\" >> '" + path("starts") + "'\nexec '" + reader + "' \"$@\"");
    }

    [[nodiscard]] std::string slider(const std::string& name = "slider.step") const {
        return folder.write(name, samples::cameraSlider());
    }

    /// Those of each start.
    [[nodiscard]] Arguments arguments() const {
        std::ifstream log(folder.path() / "starts");
        Arguments lines;
        for (std::string line; std::getline(log, line);) {
            lines.push_back(line);
        }
        return lines;
    }

    [[nodiscard]] std::size_t starts() const { return arguments().size(); }

    [[nodiscard]] std::vector<fs::path> entries() const {
        const fs::path readings = folder.path() / "data/cache/tarnix-workbench/readings";
        return fs::exists(readings) ? std::vector<fs::path>(fs::directory_iterator(readings), {})
                                    : std::vector<fs::path>();
    }

    /// The second run, and one without the cache, print what the first one printed, and the second
    /// starts no reader.
    void expectSameAgain(Arguments arguments) {
        const ProgramResult first = run(arguments);
        ASSERT_EQ(first.status, 0) << first.errors;
        const std::size_t before = starts();
        expectEqual(run(arguments), first);
        EXPECT_EQ(starts(), before);
        arguments.emplace_back("--no-cache");
        expectEqual(run(arguments), first);
        EXPECT_EQ(starts(), before + 1);
    }

    static void expectEqual(const ProgramResult& result, const ProgramResult& expected) {
        EXPECT_EQ(result.status, expected.status);
        EXPECT_EQ(result.output, expected.output);
        EXPECT_EQ(result.errors, expected.errors);
    }
};

TEST_F(ReadingCacheInRuns, ListsAndSummariesStayTheSame) {
    const std::string gearbox = folder.write("gearbox.step", samples::planetaryGearbox());

    expectSameAgain({"bom", slider()});
    expectSameAgain(
        {"bom", gearbox, "--format", "json", "--column", "Height", "--column", "Volume"});
    expectSameAgain({"bom", gearbox, "--format", "csv", "--tab", "model", "--expand", "all"});
    expectSameAgain({"info", gearbox, "--measure"});
    expectSameAgain({"info", gearbox});
}

TEST_F(ReadingCacheInRuns, RealFilesToo) {
    test_support::needRealFiles();
    if (IsSkipped()) return;

    for (const char* const name : {"as1-oc-214.stp", "as1_pe_203.stp"}) {
        expectSameAgain({"bom", (test_support::realFiles() / name).string()});
        expectSameAgain({"info", "--measure", (test_support::realFiles() / name).string()});
    }
}

TEST_F(ReadingCacheInRuns, WarningsAndStrictnessStayTheSame) {
    const std::string gearbox = folder.write("gearbox.step", samples::planetaryGearbox());
    const ProgramResult first = run({"bom", gearbox, "--strict"});

    EXPECT_EQ(first.status, 1);
    EXPECT_NE(first.errors.find("1 of 14 parts has no material"), std::string::npos);
    expectEqual(run({"bom", gearbox, "--strict"}), first);
    EXPECT_EQ(starts(), 1U);
}

TEST_F(ReadingCacheInRuns, AFileWithOtherBytesIsReadAgain) {
    const std::string file = slider();
    const std::string text = samples::cameraSlider();
    run({"info", file});

    folder.write("slider.step", text + " ");
    run({"info", file});

    EXPECT_EQ(starts(), 2U);
    EXPECT_EQ(entries().size(), 2U);
}

TEST_F(ReadingCacheInRuns, ACopyInAnotherPlaceIsTheSameFile) {
    run({"bom", slider()});
    fs::create_directory(folder.path() / "elsewhere");

    const ProgramResult copy =
        run({"bom", slider("elsewhere/slider.step"), "--save", path("copy.design.json")});

    EXPECT_EQ(copy.status, 0) << copy.errors;
    EXPECT_EQ(starts(), 1U);
    const std::string saved = folder.read("copy.design.json");
    EXPECT_NE(saved.find(path("elsewhere/slider.step")), std::string::npos) << saved;
}

TEST_F(ReadingCacheInRuns, AnUpdateOfTheLibrariesThatTheReaderLoadsIsNoticed) {
    const std::string file = slider();
    const ProgramResult first = run({"bom", file});
    expectEqual(run({"bom", file}), first);
    ASSERT_EQ(starts(), 1U);
    const fs::path library = host::readerLibraries().at(0);
    // The folder comes first where the loader looks.
    const fs::path other = folder.path() / "reader" / library.filename();
    fs::copy_file(library, other);

    expectEqual(run({"bom", file}), first);
    expectEqual(run({"bom", file}), first);
    EXPECT_EQ(starts(), 2U);

    fs::last_write_time(other, fs::file_time_type::clock::now() - std::chrono::hours(1));
    expectEqual(run({"bom", file}), first);
    EXPECT_EQ(starts(), 3U);
}

TEST_F(ReadingCacheInRuns, ALimitThatWouldBeExceededStillIs) {
    const std::string file = slider();
    run({"info", file});

    EXPECT_EQ(run({"info", file, "--max-occurrences", "2"}).status, 1);
}

/// A cart of two files; its wheel has so many spokes.
TEST_F(ReadingCacheInRuns, ReadersAtTheSameTimeShareTheProcessors) {
    fs::create_directory(folder.path() / "in");
    folder.write("in/a.step", samples::cameraSlider());
    folder.write("in/b.step", samples::cameraSlider());

    EXPECT_EQ(run({"parts", path("in"), "--jobs", "2", "--no-cache"}).status, 0);

    const std::string threads =
        " " + std::to_string(std::max(std::thread::hardware_concurrency() / 2, 1U));
    ASSERT_EQ(starts(), 2U);
    EXPECT_TRUE(arguments()[0].ends_with(threads)) << arguments()[0];
    EXPECT_TRUE(arguments()[1].ends_with(threads)) << arguments()[1];
}

class ReadingCacheOfSeveralFiles : public ReadingCacheInRuns {
protected:
    void writeWheel(int spokes) const {
        std::string text = drafts::product(10, "W", "Wheel") + drafts::product(20, "S", "Spoke");
        for (int spoke = 0; spoke < spokes; ++spoke) {
            text += drafts::usage(30 + 2 * spoke, 10, 20);
        }
        folder.write("wheel.step", drafts::step(text));
        // As if it had not been written a moment ago: a file that changes while it is read is not
        // kept.
        fs::last_write_time(folder.path() / "wheel.step",
                            fs::file_time_type::clock::now() - std::chrono::hours(1));
    }

    std::string cart = folder.write(
        "cart.step",
        drafts::step(drafts::product(10, "C", "Cart") + drafts::product(20, "W", "Wheel") +
                     drafts::usage(30, 10, 20) + drafts::reference(40, 20, "wheel.step")));
};

TEST_F(ReadingCacheOfSeveralFiles, AnotherFileThatChangesIsNoticed) {
    writeWheel(1);
    const ProgramResult first = run({"info", cart});
    expectEqual(run({"info", cart}), first);

    writeWheel(2);
    const ProgramResult other = run({"info", cart});
    expectEqual(run({"info", cart}), other);

    EXPECT_NE(first.output.find("Occurrences  2\n"), std::string::npos) << first.output;
    EXPECT_NE(other.output.find("Occurrences  3\n"), std::string::npos) << other.output;
}

TEST_F(ReadingCacheOfSeveralFiles, AFileThatGoesOrComesIsNoticed) {
    const ProgramResult without = run({"info", cart});
    expectEqual(run({"info", cart}), without);

    writeWheel(3);
    const ProgramResult with = run({"info", cart});
    fs::remove(folder.path() / "wheel.step");

    expectEqual(run({"info", cart}), without);
    EXPECT_NE(without.errors.find("wheel.step"), std::string::npos) << without.errors;
    EXPECT_NE(with.output.find("Occurrences  4\n"), std::string::npos) << with.output;
}

TEST_F(ReadingCacheOfSeveralFiles, TheSecondRunReadsTheTreeAlone) {
    test_support::needRealFiles();
    if (IsSkipped()) return;
    const std::string file = (test_support::realFiles() / "s1-c5-214/s1-c5-214.stp").string();
    const ProgramResult first = run({"info", "--measure", file});
    EXPECT_EQ(arguments().size(), 1U);

    expectEqual(run({"info", "--measure", file}), first);

    ASSERT_EQ(arguments().size(), 2U);
    EXPECT_FALSE(arguments()[0].ends_with(" tree"));
    EXPECT_TRUE(arguments()[1].ends_with(" tree"));
}

TEST_F(ReadingCacheInRuns, ADamagedEntryIsReadAndWrittenAgain) {
    const std::string file = slider();
    const ProgramResult first = run({"bom", file});
    const fs::path entry = entries().at(0);
    const std::string whole = test_support::readFile(entry);
    test_support::writeFile(entry, whole.substr(0, whole.size() - 20));

    expectEqual(run({"bom", file}), first);

    EXPECT_EQ(starts(), 2U);
    EXPECT_EQ(test_support::readFile(entry), whole);
}

TEST_F(ReadingCacheInRuns, ACacheThatCannotBeWrittenDoesNoHarm) {
    variables.setUserCache(folder.write("file", "no folder"));

    expectEqual(run({"bom", slider()}), run({"bom", slider(), "--no-cache"}));
}

}  // namespace
