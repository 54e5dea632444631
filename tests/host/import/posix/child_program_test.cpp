#include "host/import/child_program.h"
#include "tests/host/import/stub_reader_program.h"

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <iterator>
#include <string>

namespace {

using host::ChildProgram;

constexpr std::size_t kMegabytes = 1000;

std::ptrdiff_t openFiles() {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

TEST(ChildProgram, OnlyTheStandardStreamsAreInherited) {
    ChildProgram program(test_support::stubReader(), {"files"}, kMegabytes);

    std::string files;
    while (program.receive(files, std::chrono::seconds(1))) {
    }

    EXPECT_EQ(files, "0 1 2 3\n");  // 3 is the listing itself
}

TEST(ChildProgram, NeitherProcessNorFileIsLeftBehind) {
    const std::ptrdiff_t before = openFiles();
    { const ChildProgram program(test_support::stubReader(), {"hang"}, kMegabytes); }

    EXPECT_EQ(openFiles(), before);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

}  // namespace
