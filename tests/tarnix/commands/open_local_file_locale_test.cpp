#include "tests/support/files.h"
#include "tests/tarnix/commands/open_local_file_fixture.h"

#include "host/design/design_file.h"

#include <gtest/gtest.h>

#include <clocale>

namespace {

/// What the locale is called by what it does to a number.
std::string decimalPoint() { return std::localeconv()->decimal_point; }

class OpenLocalFileLocale : public OpenLocalFileTest {
protected:
    /// 12.5 x 1000 x 2 cm at 0.5 kg/cm3: 25,000 cm3, 12,500 kg and 125 mm.
    static constexpr const char* kPlate = "Plate  box=12.5x1000x2 material=Steel:0.5 at=1234.5,0,0";

    /// Opens a file, which makes the locale that of the process.
    void makeLocale() {
        pick({design("part.f3d")});
        ASSERT_EQ(decimalPoint(), ",");
    }
};

TEST_F(OpenLocalFileLocale, StaysInForceAfterTheCommand) {
    EXPECT_EQ(decimalPoint(), ".");

    pick({design("part.f3d")});

    EXPECT_EQ(decimalPoint(), ",");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(OpenLocalFileLocale, IsNotSetWithoutAFile) {
    pickNothing();

    EXPECT_EQ(decimalPoint(), ".");
}

TEST_F(OpenLocalFileLocale, LeavesThePointToTheDialogAndTheExport) {
    configure({"QEMA_Mass;Mass", "QEMA_Volume;Volume", "QEMA_Length;Length"});
    makeLocale();
    open(kPlate);

    showStructure();
    exportBom();

    EXPECT_EQ(table(), "1 | Part | Plate | 12500.000 | 25000.000 | 125.0");
    EXPECT_NE(csv().find(";12500.000;25000.000;125.0"), std::string::npos) << csv();
}

TEST_F(OpenLocalFileLocale, LeavesThePointToDesignFiles) {
    makeLocale();
    open(kPlate);

    const std::filesystem::path file = folder.path() / "saved.design.json";
    session->save(file);

    const std::string bytes = test_support::readFile(file);
    EXPECT_NE(bytes.find("1234.5"), std::string::npos) << bytes;
    EXPECT_EQ(bytes.find("1234,5"), std::string::npos) << bytes;
    const host::DesignData saved = host::loadDesignFile(file);
    EXPECT_EQ(saved.components.front().children.front().transform.cells[3], 1234.5);
    EXPECT_EQ(saved.components.at(1).geometry->volume(), 25000);
}

}  // namespace
