#include "tests/host/import/drafts.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace {

using drafts::product;
using drafts::refusal;
using drafts::step;
using drafts::usage;

class StepRefusal : public testing::Test {
protected:
    /// The line for a file of this content, without the path that it begins with.
    std::string reason(const std::string& bytes, const host::ReadingLimits& limits = {}) {
        return withoutPath(folder.write("a.step", bytes), limits);
    }

    static std::string withoutPath(const std::string& path,
                                   const host::ReadingLimits& limits = {}) {
        const std::string line = refusal(path, limits);
        EXPECT_EQ(line.substr(0, path.size() + 2), path + ": ");
        return line.size() > path.size() + 2 ? line.substr(path.size() + 2) : line;
    }

    test_support::TemporaryFolder folder;
};

/// A chain of assemblies of which each uses the next `uses` times.
std::string chain(int length, int uses) {
    std::string text;
    for (int level = 0; level < length; ++level) {
        text += product(10 + 10 * level, "", "Level " + std::to_string(level));
        for (int use = 0; use < uses && level + 1 < length; ++use) {
            text += usage(13 + 10 * level + use, 10 + 10 * level, 20 + 10 * level);
        }
    }
    return step(text);
}

TEST_F(StepRefusal, AMissingFile) {
    EXPECT_EQ(withoutPath((folder.path() / "no.step").string()), "no such file");
}

TEST_F(StepRefusal, AStringBeyondWhatCanBeReadIsNamedByItsLine) {
    const std::string text =
        step(product(10, "A", "Short") + product(20, "B", std::string(30'000, 'x') + "''s"));
    const auto line = 1 + std::count(text.begin(), text.begin() + text.find("xx"), '\n');

    EXPECT_EQ(reason(text), "cannot be read as STEP: the string in line " + std::to_string(line) +
                                " has 30000 bytes, at most 16000 are possible; shorten it");
    EXPECT_EQ(refusal(folder.write("b.step", step(product(10, "A", std::string(16'000, 'x'))))),
              "");
}

TEST_F(StepRefusal, AFolder) {
    EXPECT_EQ(withoutPath(folder.path().string()),
              "is a folder; the path of a STEP file is needed");
}

/// Ends the process with success when a file is refused with this line. The superuser may read
/// everything, and asks as another user.
[[noreturn]] void endWithRefusalOf(const std::string& path, const std::string& line) {
    constexpr uid_t kNobody = 65534;
    const bool asNobody = ::geteuid() != 0 || ::setuid(kNobody) == 0;
    std::_Exit(asNobody && refusal(path) == line ? EXIT_SUCCESS : EXIT_FAILURE);
}

TEST_F(StepRefusal, AFileThatMayNotBeRead) {
    const std::string path = folder.write("a.step", step(product(10, "P", "Bar")));
    ::chmod(folder.path().c_str(), 0755);
    ::chmod(path.c_str(), 0);

    EXPECT_EXIT(endWithRefusalOf(path, path + ": cannot be read (Permission denied); a file that "
                                              "you may read is needed"),
                testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST_F(StepRefusal, APipe) {
    const std::string path = (folder.path() / "pipe").string();
    ::mkfifo(path.c_str(), 0600);

    EXPECT_EQ(withoutPath(path), "is no ordinary file; the path of a STEP file is needed");
}

TEST_F(StepRefusal, AnEmptyFile) {
    EXPECT_EQ(reason(""), "is empty; a STEP file begins with \"ISO-10303-21;\"");
}

TEST_F(StepRefusal, AFileOfAnotherKind) {
    EXPECT_EQ(reason("PK\x03\x04 something else"),
              "is no STEP file; such a file begins with \"ISO-10303-21;\"");
    EXPECT_EQ(reason("/* a comment without an end ISO-10303-21;"),
              "is no STEP file; such a file begins with \"ISO-10303-21;\"");
}

TEST_F(StepRefusal, ATruncatedFile) {
    const std::string text = step(product(10, "P", "Bar"));

    EXPECT_EQ(reason(text.substr(0, text.find("FORMATION"))),
              "is cut off or damaged (1 syntax error, line 12: unexpected end of "
              "file, expecting '('); export it again");
    EXPECT_EQ(reason(text.substr(0, text.find("ENDSEC;\nEND-ISO"))),
              "is cut off or damaged (1 syntax error, line 14: unexpected end of "
              "file, expecting ENDSEC or ENTITY); export it again");
}

TEST_F(StepRefusal, AFileThatIsDamagedInTheMiddle) {
    // The lines after it are fine again; the parser goes on there.
    EXPECT_EQ(reason(step(product(10, "P", "Bar") + "#20=POINT Dje((1.));\n" + "#30=POINT)1.);\n" +
                          product(40, "P", "Rod"))),
              "is cut off or damaged (2 syntax errors, line 14: unexpected TYPE, expecting '('); "
              "export it again");
}

TEST_F(StepRefusal, AFileWithoutAProduct) {
    EXPECT_EQ(reason(step("#10=CARTESIAN_POINT('',(0.,0.,0.));\n")),
              "holds no product; export it as an assembly or a part (AP203, AP214 or AP242)");
}

TEST_F(StepRefusal, AssembliesThatContainEachOther) {
    EXPECT_EQ(reason(step(product(10, "", "Hen") + product(20, "", "Egg") + usage(30, 10, 20) +
                          usage(31, 20, 10))),
              "holds an assembly that contains itself (Hen > Egg > Hen); such a tree has no end");
}

TEST_F(StepRefusal, AnAssemblyThatContainsItselfBelowARoot) {
    EXPECT_EQ(reason(step(product(10, "", "Top") + product(20, "", "Egg") + usage(30, 10, 20) +
                          usage(31, 20, 20))),
              "holds an assembly that contains itself (Egg > Egg); such a tree has no end");
}

TEST_F(StepRefusal, ATreeWithMoreOccurrencesThanAllowed) {
    // 2 + 4 + 8 occurrences below the root.
    const std::string text = chain(4, 2);

    EXPECT_EQ(reason(text, {.occurrences = 13}),
              "would become more than 13 occurrences; open a part of the assembly, or increase the "
              "limit");
    EXPECT_EQ(refusal(folder.write("a.step", text), {.occurrences = 14}), "");
}

TEST_F(StepRefusal, ATreeThatDoublesAtEveryLevelIsCountedWithoutOpeningIt) {
    EXPECT_EQ(
        reason(chain(120, 2)),
        "would become more than 200000 occurrences; open a part of the assembly, or increase the "
        "limit");
}

TEST_F(StepRefusal, ATreeOfManyLevels) {
    EXPECT_EQ(reason(chain(20000, 1)),
              "nests assemblies more than 500 levels deep; open a part of the assembly");
}

TEST_F(StepRefusal, AFileThatTakesTooLong) {
    EXPECT_EQ(
        reason(step(product(10, "P", "Bar")), {.seconds = 0, .occurrences = 10}),
        "the reader took longer than 0 seconds at the stage \"Starting\"; export it again, or "
        "open a part of it");
}

TEST_F(StepRefusal, AFileThatTakesTooMuchMemory) {
    EXPECT_EQ(reason(chain(400, 1), {.megabytes = 2, .occurrences = 1000}).substr(0, 49),
              "the reader needed more than 2 megabytes of memory");
}

TEST_F(StepRefusal, AFileThatRefersToItself) {
    EXPECT_EQ(reason(step(product(10, "A", "Cart") + drafts::reference(40, 10, "a.step"))),
              "refers to a file that refers back to it; such a loop has no end");
}

TEST_F(StepRefusal, NothingIsLeftBesideTheFile) {
    reason(step("#10=CARTESIAN_POINT('',(0.,0.,0.));\n"));

    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.path()), {}), 1);
}

}  // namespace
