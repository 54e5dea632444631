#include "tests/host/import/drafts.h"
#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cstddef>

/// What cannot be read ends the program with one line, and leaves nothing.
namespace {

namespace fs = std::filesystem;
using drafts::product;
using drafts::step;
using drafts::usage;
using test_support::isOneLine;
using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

class BadInput : public test_support::WorkbenchWithReader {
protected:
    /// A STEP file of these bytes.
    [[nodiscard]] std::string file(const std::string& bytes) const {
        const fs::path path = folder.path() / "a.step";
        writeFile(path, bytes);
        return host::toUtf8(path);
    }

    /// Why `bom` refuses a file: its line after the file's name.
    std::string reason(const std::string& file, const std::vector<std::string>& more = {}) {
        std::vector<std::string> arguments = {"bom", file, "--out", out()};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return reason(file, run(arguments));
    }

    [[nodiscard]] std::string reason(const std::string& file, const ProgramResult& result) const {
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.output, "");
        EXPECT_TRUE(isOneLine(result.errors)) << result.errors;
        EXPECT_FALSE(fs::exists(folder.path() / "out"));
        EXPECT_FALSE(fs::exists(addinCopy() / "TarnixBOM.csv"));
        const std::string start = "tarnix-workbench: " + file + ": ";
        return result.errors.rfind(start, 0) == 0 ? result.errors.substr(start.size())
                                                  : result.errors;
    }
};

/// An assembly that holds another three times, which holds a part twice: nine occurrences.
std::string nine() {
    return step(product(10, "", "Cart") + product(20, "", "Wheel") + product(30, "", "Spoke") +
                usage(40, 10, 20) + usage(41, 10, 20) + usage(42, 10, 20) + usage(43, 20, 30) +
                usage(44, 20, 30));
}

TEST_F(BadInput, AFileThatIsCutOff) {
    const std::string text = step(product(10, "P", "Bar"));

    EXPECT_EQ(reason(file(text.substr(0, text.find("ENDSEC;\nEND-ISO")))),
              "is cut off or damaged (1 syntax error, line 14: unexpected end of file, expecting "
              "ENDSEC or ENTITY); export it again\n");
}

TEST_F(BadInput, AFileOfAnotherKind) {
    EXPECT_EQ(reason(file("%PDF-1.4 something else")),
              "is no STEP file; such a file begins with \"ISO-10303-21;\"\n");
}

TEST_F(BadInput, AnArchive) {
    EXPECT_EQ(reason(file("PK\x03\x04 something else")),
              "is a ZIP archive; unpack it, and open the file that was in it\n");
}

TEST_F(BadInput, AFileWithoutAProduct) {
    EXPECT_EQ(reason(file(step("#10=CARTESIAN_POINT('',(0.,0.,0.));\n"))),
              "holds no product; export it as an assembly or a part (AP203, AP214 or AP242)\n");
}

TEST_F(BadInput, AssembliesThatContainEachOther) {
    EXPECT_EQ(reason(file(step(product(10, "", "Hen") + product(20, "", "Egg") + usage(30, 10, 20) +
                               usage(31, 20, 10)))),
              "holds an assembly that contains itself (Hen > Egg > Hen); such a tree has no end\n");
}

TEST_F(BadInput, ATreeBeyondTheLimit) {
    EXPECT_EQ(reason(file(nine()), {"--max-occurrences", "8"}),
              "would become more than 8 occurrences; open a part of the assembly, or increase the "
              "limit (--max-occurrences)\n");
    EXPECT_EQ(run({"info", file(nine()), "--max-occurrences", "9"}).status, 0);
}

TEST_F(BadInput, ADesignFileBeyondTheLimit) {
    const std::string large = design(R"(
        Frame
          Bolt
          Bolt)");

    EXPECT_EQ(reason(large, {"--max-occurrences", "2"}),
              "would become more than 2 occurrences; open a part of the assembly, or increase the "
              "limit (--max-occurrences)\n");
    EXPECT_EQ(run({"info", large, "--max-occurrences", "3"}).status, 0);
}

TEST_F(BadInput, APipeWithoutAnEnd) {
    const std::string pipe = path("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    EXPECT_EQ(reason(pipe, {"--max-seconds", "1"}),
              "did not end within the time that reading may take; write a whole file to it, or "
              "increase the limit (--max-seconds)\n");
}

TEST_F(BadInput, AFileThatMayNotBeRead) {
    const std::string path = file(nine());
    fs::permissions(path, fs::perms::none);
    const fs::path program = host::environment::programFolder() / "tarnix-workbench";
    const fs::path output = folder.path() / "output";
    const fs::path errors = folder.path() / "errors";
    // The superuser may read everything, unless this right is taken away.
    std::vector<std::string> arguments = {program.string(), "bom", path, "--out", out()};
    if (::geteuid() == 0) {
        arguments.insert(arguments.begin(),
                         {"setpriv", "--bounding-set", "-dac_override,-dac_read_search"});
    }

    const int status = test_support::runRedirected("/usr/bin/env", arguments, output, errors);

    EXPECT_EQ(reason(path, {status, readFile(output), readFile(errors)}),
              "cannot be read (Permission denied); a file that you may read is needed\n");
}

TEST_F(BadInput, AReaderThatCrashes) {
    readerIs("kill -SEGV $$");

    EXPECT_EQ(reason(anyStep()),
              "the reader crashed (Segmentation fault) at the stage \"Starting\"; export it again, "
              "or open a part of it\n");
}

TEST_F(BadInput, AFileThatTakesTooLong) {
    readerIs("exec sleep 60");

    EXPECT_EQ(
        reason(anyStep(), {"--max-seconds", "1"}),
        "the reader took longer than 1 seconds at the stage \"Starting\"; export it again, or "
        "open a part of it\n");
}

TEST_F(BadInput, AFileThatTakesTooMuchMemory) {
    readerIs("exec tail /dev/zero");

    EXPECT_EQ(
        reason(anyStep(), {"--max-memory", "20"}),
        "the reader needed more than 20 megabytes of memory at the stage \"Starting\"; export "
        "it again, or open a part of it\n");
}

TEST_F(BadInput, ADesignFileThatMayTakeTooMuchMemory) {
    const fs::path path = folder.path() / "large.design.json";
    constexpr std::size_t kOfSixteenMegabytes = 16 * 1024 * 1024 / 32;
    writeFile(path, "{" + std::string(kOfSixteenMegabytes, ' '));

    EXPECT_EQ(reason(host::toUtf8(path), {"--max-memory", "16"}),
              "may take more than 16 megabytes of memory; open a smaller design, or increase the "
              "limit (--max-memory)\n");
}

TEST_F(BadInput, GetsTheSameLineFromInfo) {
    const std::string path = file("PK");

    EXPECT_EQ(reason(path, run({"info", path})),
              "is no STEP file; such a file begins with \"ISO-10303-21;\"\n");
}

}  // namespace
