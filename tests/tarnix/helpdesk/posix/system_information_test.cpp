#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <fstream>
#include <string>

namespace test_support {
namespace {

/// What a command line prints, without the end of its last line.
std::string lineOf(const std::string& command) {
    std::array<char, 256> text = {};
    FILE* const pipe = ::popen(command.c_str(), "r");
    const bool isRead = std::fgets(text.data(), static_cast<int>(text.size()), pipe) != nullptr;
    ::pclose(pipe);
    std::string line = isRead ? text.data() : "";
    return line.substr(0, line.find('\n'));
}

/// The system's memory in KiB, as its list of figures begins.
long memoryKibibytes() {
    std::ifstream list("/proc/meminfo");
    std::string caption;
    long kibibytes = 0;
    list >> caption >> kibibytes;
    return kibibytes;
}

using SystemInformationOfLinux = HelpdeskTest;

TEST_F(SystemInformationOfLinux, IsWhatTheSystemsToolsReport) {
    const std::string name = lineOf("LC_ALL=C lscpu | sed -n 's/^Model name: *//p'");
    const std::string processors = lineOf("LC_ALL=C lscpu | sed -n 's/^CPU(s): *//p'");
    if (name.empty()) {
        GTEST_SKIP() << "lscpu names no processor";
    }
    press("systemInfo");
    EXPECT_EQ(contentOf("SystemInfo.txt"),
              "Hardware information: \r\n"
              "  CPU : \r\n"
              "    " +
                  name +
                  "\r\n"
                  "  RAM : \r\n"
                  "    Number of Cores : " +
                  processors +
                  "\r\n"
                  "    Total System Memory: " +
                  std::to_string(memoryKibibytes() / 1024) + "MB\r\n");
}

}  // namespace
}  // namespace test_support
