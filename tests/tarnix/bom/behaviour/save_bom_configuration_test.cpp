#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace test_support {
namespace {

class BomConfiguration : public BomDialogTest {
protected:
    void SetUp() override {
        BomDialogTest::SetUp();
        open("Bolt  property=Colour/red");
    }

    void save() {
        // A caption's id has no number, so typing one has thrown as well.
        faults.forgetExceptions();
        session->click("QEMA_btnSaveConfigBom");
        EXPECT_EQ(uncaughtExceptions(),
                  "std::invalid_argument: invalid stoi argument in OnInputChanged of "
                  "QEMA_btnSaveConfigBom");
        faults.forgetExceptions();
    }

    /// What the settings document holds of the columns.
    [[nodiscard]] std::string stored() const {
        const std::string document = readFile(settingsFile());
        const std::size_t begin = document.find("<category name=\"bomItems\"");
        return document.substr(begin, document.find("</configuration>") - begin);
    }
};

TEST_F(BomConfiguration, StoresTheChosenColumnsFromLeftToRight) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    session->paste("nameCol5", "Weight");
    session->choose("iProperty_1", "Colour");

    save();

    EXPECT_EQ(stored(),
              "<category name=\"bomItems\">"
              "<item_bomItems id=\"QEMA_Mass\"><displayName>Weight</displayName></item_bomItems>"
              "<item_bomItems id=\"QEMA_Colour\"><displayName>Colour</displayName></item_bomItems>"
              "</category>");
}

TEST_F(BomConfiguration, WithoutAChosenColumnStoresNone) {
    configure({"QEMA_Area;Area"});
    showConfiguration();
    session->choose("iProperty_0", "---Select One---");

    save();

    EXPECT_EQ(stored(), "<category name=\"bomItems\"/>");
}

TEST_F(BomConfiguration, ReplacesWhatWasStored) {
    configure({"QEMA_Area;Area", "QEMA_Volume;Volume"});
    showConfiguration();
    session->choose("iProperty_0", "Mass");

    save();

    EXPECT_EQ(stored(),
              "<category name=\"bomItems\">"
              "<item_bomItems id=\"QEMA_Mass\"><displayName>Mass</displayName></item_bomItems>"
              "<item_bomItems id=\"QEMA_Volume\"><displayName>Volume</displayName></item_bomItems>"
              "</category>");
}

TEST_F(BomConfiguration, KeepsTheSemicolonsOfACaption) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    session->paste("nameCol5", "Mass; net");

    save();

    EXPECT_EQ(stored(),
              "<category name=\"bomItems\">"
              "<item_bomItems id=\"QEMA_Mass\"><displayName>Mass; net</displayName></item_bomItems>"
              "</category>");
}

TEST_F(BomConfiguration, OfAnEmptyCaptionIsReadBackAsMissing) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    session->paste("nameCol5", "");
    save();
    session->cancel();

    showConfiguration();

    EXPECT_EQ(value("nameCol5"), "missing");
}

TEST_F(BomConfiguration, ClosesTheGapsBetweenChosenColumns) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    session->choose("iProperty_3", "Area");
    save();
    session->cancel();

    showConfiguration();

    EXPECT_EQ(value("nameCol5"), "Mass");
    EXPECT_EQ(value("nameCol6"), "Area");
    EXPECT_EQ(value("colUsrHeader_2"), "used");
    EXPECT_EQ(value("colUsrHeader_4"), "not used");
}

TEST_F(BomConfiguration, TwiceInARowWritesTheSameFile) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    save();
    const std::string first = readFile(settingsFile());

    save();

    EXPECT_EQ(readFile(settingsFile()), first);
}

TEST_F(BomConfiguration, LeavesTheOpenTablesAsTheyAre) {
    showStructure();
    const std::string before = shownTable();
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    save();

    showStructure();

    EXPECT_EQ(shownTable(), before);
}

TEST_F(BomConfiguration, ShowsInTheTablesWhenTheDialogOpensAgain) {
    showConfiguration();
    session->choose("iProperty_0", "Colour");
    save();
    session->cancel();

    showStructure();

    EXPECT_EQ(table(), "1 | Part | Bolt | red");
}

TEST_F(BomConfiguration, WithoutItsTableEmptiesTheStoredChoice) {
    configure({"QEMA_Area;Area"});
    showConfiguration();
    ASSERT_TRUE(session->input("QEMA_bom_config_table")->deleteMe());

    save();

    EXPECT_EQ(stored(), "<category name=\"bomItems\"/>");
}

TEST_F(BomConfiguration, WithoutACaptionFieldLeavesTheFileAlone) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    const std::string before = readFile(settingsFile());
    session->table("QEMA_bom_config_table")->removeInput(1, 4);

    session->click("QEMA_btnSaveConfigBom");

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of QEMA_btnSaveConfigBom");
    EXPECT_EQ(readFile(settingsFile()), before);
}

TEST_F(BomConfiguration, MakesAMissingFileBeforeItReadsTheTable) {
    showConfiguration();
    session->choose("iProperty_0", "Mass");
    session->table("QEMA_bom_config_table")->removeInput(1, 4);
    ASSERT_TRUE(std::filesystem::remove(settingsFile()));

    session->click("QEMA_btnSaveConfigBom");

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of QEMA_btnSaveConfigBom");
    EXPECT_EQ(stored(), "<category name=\"bomItems\"/>");
}

}  // namespace
}  // namespace test_support
