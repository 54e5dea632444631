#include "tarnix/helpdesk/system_information.h"

#include "tests/support/case_name.h"
#include "tests/support/files.h"
#include "tests/tarnix/helpdesk/helpdesk_fixture.h"

#include "host/session/system_overrides.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace fs = std::filesystem;

namespace test_support {
namespace {

class SystemInformation : public HelpdeskTest {
protected:
    [[nodiscard]] std::string file() const { return contentOf("SystemInfo.txt"); }

    /// The line with this number, counted from 1, without its end.
    [[nodiscard]] std::string line(int number) const {
        std::string text = file();
        for (; number > 1; --number) {
            text.erase(0, text.find("\r\n") + 2);
        }
        return text.substr(0, text.find("\r\n"));
    }

    /// Starts over on a machine whose processor has extended leaves up to `highest`. The three
    /// leaves of the name spell "  Processor 0123 @ 2.00GHz-with-a-name-of-48-cha".
    void restartWithLeavesUpTo(unsigned highest) {
        host::SessionOptions with = addinOptions();
        with.system.processor = [highest](unsigned leaf) -> std::array<unsigned, 4> {
            if (leaf == 0x80000000U) {
                return {highest, 0, 0, 0};
            }
            if (leaf < 0x80000002U || leaf > 0x80000004U) {
                return {0x41414141, 0x41414141, 0x41414141, 0x41414141};
            }
            const std::string name = "  Processor 0123 @ 2.00GHz-with-a-name-of-48-cha";
            std::array<unsigned, 4> registers = {};
            const std::size_t start = static_cast<std::size_t>(leaf - 0x80000002U) * 16;
            for (std::size_t i = 0; i < 16; ++i) {
                registers[i / 4] |= static_cast<unsigned>(name[start + i]) << (8 * (i % 4));
            }
            return registers;
        };
        restart(with);
        ASSERT_TRUE(run());
    }
};

TEST_F(SystemInformation, IsWrittenInSixLinesIntoAFolderThatIsMade) {
    press("systemInfo");
    EXPECT_EQ(line(1), "Hardware information: ");
    EXPECT_EQ(line(2), "  CPU : ");
    EXPECT_EQ(line(3).substr(0, 4), "    ");
    EXPECT_EQ(line(4), "  RAM : ");
    EXPECT_EQ(line(5).rfind("    Number of Cores : ", 0), 0U);
    EXPECT_EQ(line(6).rfind("    Total System Memory: ", 0), 0U);
    EXPECT_TRUE(line(6).ends_with("MB"));
    EXPECT_EQ(line(7), "");
    EXPECT_EQ(shownMessages(), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(SystemInformation, IsReplacedByASecondRun) {
    press("systemInfo");
    const std::string first = file();
    writeFile(supportFolder() / "SystemInfo.txt", first + first);
    press("systemInfo");
    EXPECT_EQ(file(), first);
}

TEST_F(SystemInformation, IsLeftOutQuietlyWhereTheFileCannotBeOpened) {
    fs::create_directories(supportFolder() / "SystemInfo.txt");
    press("systemInfo");
    EXPECT_EQ(uncaughtExceptions(), "");
    EXPECT_EQ(shownMessages(), "");

    fs::remove(supportFolder() / "SystemInfo.txt");
    press("systemInfo");
    EXPECT_EQ(line(1), "Hardware information: ");
}

/// A processor by its last extended leaf, and the line that names it.
struct Processor {
    const char* name;
    unsigned lastLeaf;
    const char* line;
};

class SystemInformationOf : public SystemInformation,
                            public testing::WithParamInterface<Processor> {};

TEST_P(SystemInformationOf, NamesTheProcessor) {
    restartWithLeavesUpTo(GetParam().lastLeaf);

    press("systemInfo");

    EXPECT_EQ(line(3), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    EachProcessor, SystemInformationOf,
    testing::Values(Processor{.name = "WithANameOf48Bytes",
                              .lastLeaf = 0x80000004U,
                              .line = "      Processor 0123 @ 2.00GHz-with-a-name-of-48-cha"},
                    Processor{.name = "WithMoreLeaves",
                              .lastLeaf = 0x8000001FU,
                              .line = "      Processor 0123 @ 2.00GHz-with-a-name-of-48-cha"},
                    Processor{.name = "WithFewerLeaves",
                              .lastLeaf = 0x80000002U,
                              .line = "      Processor 0123"},
                    Processor{.name = "WithoutAName", .lastLeaf = 0x80000001U, .line = "    "},
                    Processor{.name = "WithoutExtendedLeaves", .lastLeaf = 5, .line = "    "}),
    caseName);

TEST_F(SystemInformation, GoesWhereTheFolderWasWhenTheModuleWasLoaded) {
    const auto names = host::environment::temporaryFolderNames();
    fs::create_directory(session->folder() / "other");
    const auto before = host::environment::variable(names.front());
    host::environment::setVariable(names.front(), (session->folder() / "other").native());
    press("systemInfo");
    host::environment::setVariable(names.front(), before);
    // The folder of now is made, and the one that the file goes to is not there.
    EXPECT_TRUE(fs::is_empty(session->folder() / "other" / "Helpdesk"));
    EXPECT_FALSE(fs::exists(supportFolder()));
    EXPECT_EQ(uncaughtExceptions(), "");
}

}  // namespace
}  // namespace test_support
