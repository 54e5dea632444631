#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace test_support {
namespace {

/// What follows a caption and its colon in a list of the system below Wine.
std::string valueIn(const std::string& list, const std::string& caption) {
    std::ifstream file("Z:\\proc\\" + list);
    for (std::string line; std::getline(file, line);) {
        const std::size_t colon = line.find(':');
        if (colon != std::string::npos && line.rfind(caption, 0) == 0) {
            return line.substr(line.find_first_not_of(" \t", colon + 1));
        }
    }
    return "";
}

using SystemInformationOfWindows = HelpdeskTest;

TEST_F(SystemInformationOfWindows, IsWhatTheSystemBelowWineReports) {
    const std::string processor = valueIn("cpuinfo", "model name");
    const std::string memory = valueIn("meminfo", "MemTotal");
    if (processor.empty() || memory.empty()) {
        GTEST_SKIP() << "there is no other system below this one";
    }
    press("systemInfo");
    EXPECT_EQ(contentOf("SystemInfo.txt"),
              "Hardware information: \r\n"
              "  CPU : \r\n"
              "    " +
                  processor +
                  "\r\n"
                  "  RAM : \r\n"
                  "    Number of Cores : " +
                  std::string(std::getenv("NUMBER_OF_PROCESSORS")) +
                  "\r\n"
                  "    Total System Memory: " +
                  std::to_string(std::stoll(memory) / 1024) + "MB\r\n");
}

}  // namespace
}  // namespace test_support
