#include "host/import/read_design.h"

#include "host/base/folder_lock.h"
#include "host/design/design_file.h"
#include "host/design/outline.h"
#include "samples/product.h"
#include "tests/host/import/drafts.h"
#include "tests/support/temporary_folder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <zlib.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <thread>

/// Files of every kind: pipes, the standard input, archives.
namespace {

namespace fs = std::filesystem;

using drafts::product;
using drafts::step;
using drafts::usage;
using host::DesignData;
using host::ReadingLimits;

const std::string kCart =
    step(product(10, "C-1", "Cart") + product(20, "W", "Wheel") + usage(30, 10, 20));

/// Why a pipe is given up, after its name.
constexpr const char* kNoEnd =
    ": did not end within the time that reading may take; write a whole file to it, or increase "
    "the limit";

/// What `gzip` makes of a text.
std::string packed(const std::string& text) {
    z_stream stream = {};
    constexpr int kGzip = 15 + 16;  // the largest window, and gzip's header
    EXPECT_EQ(::deflateInit2(&stream, Z_BEST_SPEED, Z_DEFLATED, kGzip, 8, Z_DEFAULT_STRATEGY),
              Z_OK);
    std::string result(::deflateBound(&stream, text.size()), '\0');
    std::string input = text;
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    stream.next_out = reinterpret_cast<Bytef*>(result.data());
    stream.avail_out = static_cast<uInt>(result.size());
    EXPECT_EQ(::deflate(&stream, Z_FINISH), Z_STREAM_END);
    result.resize(stream.total_out);
    ::deflateEnd(&stream);
    return result;
}

class ReadDesign : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directory(temporary);
        ::setenv("TMPDIR", temporary.c_str(), 1);
    }

    void TearDown() override {
        ::unsetenv("TMPDIR");
        // Nothing of what was copied is left.
        EXPECT_TRUE(fs::is_empty(temporary));
    }

    DesignData read(const std::string& path, const ReadingLimits& limits = {}) {
        return host::readDesign(path, limits, {}, warnings);
    }

    std::string refusal(const std::string& path, const ReadingLimits& limits = {}) {
        try {
            read(path, limits);
        } catch (const std::runtime_error& error) {
            return error.what();
        }
        return {};
    }

    /// Reads the standard input, which is this text.
    DesignData readInput(const std::string& text) {
        const std::string path = folder.write("input", text);
        const int before = ::dup(STDIN_FILENO);
        const int file = ::open(path.c_str(), O_RDONLY);
        ::dup2(file, STDIN_FILENO);
        ::close(file);
        DesignData design = read("-");
        ::dup2(before, STDIN_FILENO);
        ::close(before);
        return design;
    }

    test_support::TemporaryFolder folder;
    fs::path temporary = folder.path() / "tmp";
    std::vector<host::ReadingWarning> warnings;
};

TEST_F(ReadDesign, ANamedPipeIsReadToItsEnd) {
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << kCart; });

    const DesignData design = read(pipe);

    writer.join();
    EXPECT_EQ(drafts::tree(design),
              "Cart\n"
              "  Wheel:1\n");
    EXPECT_EQ(design.name, "pipe");
    EXPECT_FALSE(design.source.has_value());
}

TEST_F(ReadDesign, ANamedPipeThatNobodyWritesToIsGivenUp) {
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);

    EXPECT_EQ(refusal(pipe, {.seconds = 0.1}), pipe + kNoEnd);
}

TEST_F(ReadDesign, ANamedPipeThatIsWrittenToWithoutEndIsGivenUp) {
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    ::signal(SIGPIPE, SIG_IGN);
    std::atomic<bool> isGivenUp = false;
    std::thread writer([&] {
        std::ofstream stream(pipe);
        while (!isGivenUp) {
            stream << "ISO" << std::flush;
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
    });

    const std::string why = refusal(pipe, {.seconds = 0.2});

    isGivenUp = true;
    writer.join();
    EXPECT_EQ(why, pipe + kNoEnd);
}

TEST_F(ReadDesign, TheStandardInputIsRead) {
    const DesignData design = readInput(kCart);

    EXPECT_EQ(design.components[0].name, "Cart");
    EXPECT_EQ(design.name, "standard input");
    EXPECT_FALSE(design.source.has_value());
}

TEST_F(ReadDesign, ADesignFileComesThroughTheStandardInputToo) {
    const std::string file = (folder.path() / "a.design.json").string();
    host::saveDesignFile(file, host::parseOutline("Bolt"));
    std::ifstream stream(file);
    const std::string text = {std::istreambuf_iterator<char>(stream), {}};

    EXPECT_EQ(readInput(text).components[1].name, "Bolt");
}

TEST_F(ReadDesign, APipeLargerThanTheMemoryAllowsIsRefused) {
    const std::string pipe = (folder.path() / "pipe").string();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    std::thread writer([&] { std::ofstream(pipe) << kCart << std::string(300'000, ' '); });

    EXPECT_EQ(refusal(pipe, {.megabytes = 1}),
              pipe +
                  ": is too large for the memory that may be used; open a part of the assembly, "
                  "or increase the limit");
    writer.join();
}

TEST_F(ReadDesign, APackedFileIsRead) {
    const std::string file = folder.write("Cart.step.gz", packed(kCart));

    const DesignData design = read(file);

    EXPECT_EQ(design.components[0].name, "Cart");
    EXPECT_EQ(design.name, "Cart");
    EXPECT_EQ(design.source->path, fs::canonical(file).string());
}

TEST_F(ReadDesign, AnArchiveOfStepIsReadWhateverItsName) {
    EXPECT_EQ(read(folder.write("Cart.stpz", packed(kCart))).name, "Cart");
    EXPECT_EQ(read(folder.write("Cart.step", packed(kCart))).components[0].name, "Cart");
}

TEST_F(ReadDesign, FilesThatAPackedOneRefersToAreBesideIt) {
    folder.write("wheel.stp",
                 step(product(10, "W", "Wheel") + product(20, "S", "Spoke") + usage(30, 10, 20)));
    const std::string file = folder.write(
        "Cart.stpz", packed(step(product(10, "C-1", "Cart") + product(20, "W", "Wheel") +
                                 usage(30, 10, 20) + drafts::reference(40, 20, "wheel.stp"))));

    EXPECT_EQ(drafts::tree(read(file)),
              "Cart\n"
              "  Wheel:1\n"
              "    Spoke:1\n");
}

TEST_F(ReadDesign, ADesignWhoseBodiesAreInAnArchiveFindsThemAgain) {
    const std::string source = folder.write(
        "Plate.stpz", packed(samples::stepFile(
                          "x", {{.key = "plate",
                                 .id = "P",
                                 .name = "Plate",
                                 .description = "",
                                 .material = {},
                                 .solid = samples::Solid{{{samples::rectangle(10, 20), 5}}, {}},
                                 .uses = {}}})));
    const std::string saved = (folder.path() / "a.design.json").string();
    host::saveDesignFile(saved, read(source));

    EXPECT_NEAR(read(saved).components[0].geometry->volume(), 1, 1e-9);
}

TEST_F(ReadDesign, AnArchiveThatUnpacksBeyondTheMemoryIsRefused) {
    const std::string file = folder.write("a.stpz", packed(std::string(8'000'000, ' ')));

    EXPECT_EQ(refusal(file, {.megabytes = 8}),
              file +
                  ": is too large for the memory that may be used; open a part of the assembly, "
                  "or increase the limit");
}

TEST_F(ReadDesign, AnArchiveThatIsCutOffIsRefused) {
    std::string bytes = packed(kCart);
    bytes.resize(bytes.size() / 2);
    const std::string file = folder.write("a.stpz", bytes);

    EXPECT_EQ(refusal(file),
              file + ": cannot be unpacked: the archive is cut off or damaged; pack it again");
}

TEST_F(ReadDesign, APackedFileOfAnotherKindIsRefusedByItsOwnName) {
    const std::string file = folder.write("a.gz", packed("nothing of the kind"));

    EXPECT_EQ(refusal(file), file + ": is no STEP file; such a file begins with \"ISO-10303-21;\"");
}

TEST_F(ReadDesign, APackedDesignFileIsRefusedByItsOwnName) {
    const std::string file = folder.write("a.gz", packed("{}"));

    EXPECT_EQ(refusal(file).substr(0, file.size() + 2), file + ": ");
}

TEST_F(ReadDesign, AZipArchiveIsNamed) {
    const std::string file = folder.write("a.stpz", std::string("PK\x03\x04 and more"));

    EXPECT_EQ(refusal(file),
              file + ": is a ZIP archive; unpack it, and open the file that was in it");
}

TEST_F(ReadDesign, ADeviceIsRefused) {
    EXPECT_EQ(refusal("/dev/zero"),
              "/dev/zero: is no ordinary file; the path of a STEP file is needed");
}

TEST_F(ReadDesign, CopiesOfAProcessThatWasKilledAreRemoved) {
    fs::create_directory(temporary / "standin-reading-123456789");

    readInput(kCart);

    EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(ReadDesign, CopiesOfAProcessThatLivesAreKept) {
    const fs::path copy = temporary / "standin-reading-123456789";
    fs::create_directory(copy);
    std::array<int, 2> locked = {};
    ASSERT_EQ(::pipe(locked.data()), 0);
    const pid_t owner = ::fork();
    if (owner == 0) {
        const auto lock = host::FolderLock::take(copy);
        ::_exit(::write(locked[1], "x", 1) == 1 && lock ? ::pause() : 1);
    }
    char mark = 0;
    ASSERT_EQ(::read(locked[0], &mark, 1), 1);

    readInput(kCart);
    EXPECT_TRUE(fs::exists(copy));

    ::kill(owner, SIGKILL);
    ASSERT_EQ(::waitpid(owner, nullptr, 0), owner);
    ::close(locked[0]);
    ::close(locked[1]);
    readInput(kCart);
    EXPECT_FALSE(fs::exists(copy));
}

}  // namespace
