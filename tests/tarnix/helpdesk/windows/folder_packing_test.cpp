#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_test.h"

#include <gtest/gtest.h>

#include <string>

namespace fs = std::filesystem;

namespace test_support {
namespace {

class ZipOfTheShell : public HelpdeskTest {};

// Where the Shell has no compressed folders nothing is ever written behind the record; where it has
// them, it may have been.
TEST_F(ZipOfTheShell, LeavesAnArchiveAtLeast) {
    fs::create_directory(supportFolder());
    put("screen_001.png", "picture");
    press("compressFolder");
    const std::string archive = readFile(supportFolder() / "helpdesk.zip");
    EXPECT_GE(archive.size(), 22U);
    EXPECT_EQ(archive.substr(0, 2), "PK");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(raised(), "");
}

}  // namespace
}  // namespace test_support
