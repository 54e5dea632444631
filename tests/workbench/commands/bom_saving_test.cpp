#include "tests/workbench/reader_fixture.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>
#include <string>
#include <thread>
#include <vector>

/// What other runs do while one is still reading.
namespace {

using test_support::ProgramResult;
using test_support::readFile;
using test_support::writeFile;

/// The reader's response: a frame with one bolt, both without bodies.
constexpr const char* kFrame = R"sh(
component() {
    echo '{"id": "", "name": "'$1'", "description": "", "shape": -1, "bodies": 0, "uses": ['$2']}'
}
use='{"component": 1, "placement": [1,0,0,0, 0,1,0,0, 0,0,1,0]}'
echo '{"design": {"unit": "mm", "files": [], "roots": [0], "components": [' \
    "$(component Frame "$use"), $(component Bolt)" ']}}'
read request
)sh";

class BomSaving : public test_support::WorkbenchWithReader {
protected:
    [[nodiscard]] std::string quotedPath(const char* name) const { return "'" + path(name) + "'"; }
};

TEST_F(BomSaving, AListIsNotPrintedThatIsNotSaved) {
    const std::string target = design(test_support::kSmallDesign, "target");
    readerIs("echo '{}' > " + quotedPath("target.design.json") + kFrame);

    const ProgramResult result =
        run({"bom", anyStep(), "--save", target, "--out", out(), "--output", path("list.txt")});

    EXPECT_EQ(result.status, 5);
    EXPECT_EQ(result.errors, "tarnix-workbench: cannot write " + target +
                                 ": another program changed it after it was read; nothing was "
                                 "saved, run again\n");
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(readFile(host::fromUtf8(target)), "{}\n");
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(path("list.txt"))));
    EXPECT_FALSE(std::filesystem::exists(host::fromUtf8(out())));
}

TEST_F(BomSaving, ASlowFileKeepsNoOtherRunFromADataHome) {
    const std::string go = quotedPath("go");
    readerIs("touch " + quotedPath("reads") + "\nwhile [ ! -e " + go + " ]; do sleep 0.05; done" +
             kFrame);
    const std::vector<std::string> kept = {"--column", "Quantity", "--keep-columns", "--data-home",
                                           path("home")};
    std::vector<std::string> slow = {"bom", anyStep()};
    slow.insert(slow.end(), kept.begin(), kept.end());
    auto reading = std::async(std::launch::async, [slow] { return run(slow); });
    while (!std::filesystem::exists(host::fromUtf8(path("reads")))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }

    std::vector<std::string> quick = {"bom", design(test_support::kSmallDesign), "--max-seconds",
                                      "1"};
    quick.insert(quick.end(), kept.begin(), kept.end());
    const ProgramResult result = run(quick);

    writeFile(host::fromUtf8(path("go")), "");
    EXPECT_EQ(result.status, 0) << result.errors;
    EXPECT_EQ(reading.get().status, 0);
}

}  // namespace
