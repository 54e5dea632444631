#include "tests/tarnix/addin/addin_ui_fixture.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace test_support {
namespace {

/// The add-in in a folder whose name holds a letter that no single-byte code page has. The path of
/// the settings has a space in its place, and no such folder is there.
class FolderBeyondTheCodePage : public AddinUiTest {
protected:
    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions abroad = addinOptions();
        abroad.scratchRoot /= L"\u6F22";
        return abroad;
    }
};

/// The add-in in a folder whose name holds a space and a letter of the western code page.
class FolderOfTheCodePage : public AddinUiTest {
protected:
    void SetUp() override {
        if (::GetACP() != 1252) {
            GTEST_SKIP() << "written for the code page 1252";
        }
        AddinUiTest::SetUp();
    }

    [[nodiscard]] host::SessionOptions options() const override {
        host::SessionOptions there = addinOptions();
        there.scratchRoot /= L"J\u00F6rgs Ablage";
        return there;
    }
};

TEST_F(FolderOfTheCodePage, KeepsSettingsAndExportBesideTheModule) {
    open("Plate  number=P-1");
    showModel();

    exportBom();

    EXPECT_TRUE(std::filesystem::exists(settingsFile()));
    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FolderBeyondTheCodePage, StillLetsTheAddinRun) {
    EXPECT_TRUE(definition("QM_TX_BOM"));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(FolderBeyondTheCodePage, FailsTheSettingsAndCreatesNone) {
    open("Plate  number=P-1");

    openBom();

    ASSERT_EQ(faults.exceptions().size(), 1U) << uncaughtExceptions();
    EXPECT_EQ(faults.exceptions().front().type, "_com_error");
    EXPECT_FALSE(std::filesystem::exists(settingsFile()));
}

}  // namespace
}  // namespace test_support
