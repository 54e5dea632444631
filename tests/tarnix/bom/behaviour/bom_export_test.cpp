#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "tests/support/comma_locale.h"
#include "tests/support/files.h"
#include "tests/support/held_files.h"
#include "tests/support/temporary_folder.h"

#include "host/base/gate.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace test_support {
namespace {

/// Steel of 100 and 200 cm3 weighs 0.785 and 1.570 kg.
constexpr const char* kBoltsAndPlate = R"(
    Bolt  number=B-1 measures=10:100
    Bolt
    Plate  number=P-1 measures=10:200)";

class BomExport : public BomDialogTest {};

TEST_F(BomExport, WritesTheStructureTableByteForByte) {
    configure({"QEMA_Quantity;Qty", "QEMA_Mass;Mass"});
    open(kBoltsAndPlate);
    showStructure();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;Qty;Mass [kg];\r\n"
              "1;B-1;Produce;2;0.785;\r\n"
              "2;P-1;Produce;1;1.570;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;3.140\r\n");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomExport, IsWholeWhereTheShellOpensNothing) {
    host::SessionOptions failing = addinOptions();
    failing.shell = host::shell_requests::Policy::RecordFail;
    restart(failing);
    run();
    open("Plate  number=P-1 measures=10:200");
    showStructure();

    exportBom();

    EXPECT_EQ(session->openedByShell().size(), 1U);
    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;1.570\r\n");
    EXPECT_TRUE(session->dialogOpen());
    EXPECT_TRUE(session->messages().empty());
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomExport, WritesTheModelTableWithItsPositions) {
    configure({"QEMA_Part Name;Name"});
    open(kBoltsAndPlate);
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;Name;\r\n"
              "1;B-1;Produce;Bolt;\r\n"
              "2;B-1;Produce;Bolt;\r\n"
              "3;P-1;Produce;Plate;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, OfTheModelTabCarriesTheMassOnceStructureWasShown) {
    open("Plate  number=P-1 measures=10:200");
    showStructure();
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;1.570\r\n");
}

TEST_F(BomExport, OfATableWithoutRowsWritesNothing) {
    open("");
    showModel();

    exportBom();

    EXPECT_FALSE(std::filesystem::exists(csvFile()));
    EXPECT_TRUE(session->openedByShell().empty());
}

TEST_F(BomExport, LeavesOutFoldedRows) {
    open(R"(
        Frame  number=F-1
          Leg  number=L-1
        Foot  number=F-2)");
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;F-1;Produce;\r\n"
              "2;F-2;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, LeavesOutHiddenRowsAndKeepsTheirMass) {
    open(kBoltsAndPlate);
    showStructure();
    hideRow(1);

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "2;P-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;3.140\r\n");
}

TEST_F(BomExport, OfARowWithoutAChosenStructureSaysNotAvailable) {
    // A property that holds "1" ahead of the structure's counts as set, so none is chosen.
    open("Plate  number=P-1 property=Rank/1");
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;n/a;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, OfAPartNumberOfOneSaysNotAvailable) {
    open("Plate  number=1");
    showStructure();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;1;n/a;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;0.000\r\n");
}

TEST_F(BomExport, LetsASemicolonBreakTheColumns) {
    open("Plate  number=P;1");
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P;1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, KeepsTheBytesOfTexts) {
    open("Plate  number=\xC4\x8D\xE4\xB8\xAD");
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;\xC4\x8D\xE4\xB8\xAD;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, WritesWhatWasTypedIntoTheTable) {
    open("Plate  number=P-1");
    showModel();
    session->paste("modelPartNumberOcc_1", "P-2");
    session->choose("modelBomStructure_1", "Buy");

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-2;Buy;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, TwiceInARowLeavesTheLinesOfTheSecond) {
    open("Plate  number=P-1");
    showModel();
    exportBom();
    session->paste("modelPartNumberOcc_1", "P-2");

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-2;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
    EXPECT_EQ(session->openedByShell().size(), 2U);
}

TEST_F(BomExport, ToAFileThatCannotBeDeletedAppends) {
    writeFile(csvFile(), "older\r\n");
    const auto kept = holdUndeletable(csvFile());
    if (kept == nullptr) {
        GTEST_SKIP() << "this file system cannot keep a file from deletion";
    }
    open("Plate  number=P-1");
    showModel();

    exportBom();

    EXPECT_EQ(csv(),
              "older\r\n"
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;\r\n");
}

TEST_F(BomExport, ToAReadOnlyFileKeepsTheOldText) {
    writeFile(csvFile(), "older\r\n");
    std::filesystem::permissions(csvFile(), std::filesystem::perms::owner_read);
    open("Plate  number=P-1");
    showModel();

    exportBom();

    // The superuser may append to it; for others, and on Windows, it does not open.
    EXPECT_EQ(csv().substr(0, 7), "older\r\n");
    EXPECT_EQ(uncaughtExceptions(), "");
    std::filesystem::permissions(csvFile(), std::filesystem::perms::owner_all);
}

TEST_F(BomExport, LeavesOutARowThatIsHiddenAsAReference) {
    open(R"(
        Plate  number=P-1
        Bolt   number=B-1)");
    showStructure();
    session->choose("bomStructure_1", "Reference");

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "2;B-1;Produce;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;0.000\r\n");
}

TEST_F(BomExport, WritesNumbersWithThePointUnderACommaLocale) {
    const CommaLocale locale;
    configure({"QEMA_Mass;Mass", "QEMA_Length;Length"});
    // 400,000 cm3 of steel weigh 3140 kg.
    open("Beam  number=B-1 box=250x1x1 measures=10:400000");
    showStructure();

    exportBom();

    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;Mass [kg];Length;\r\n"
              "1;B-1;Produce;3140.000;2500.0;\r\n"
              "\r\n"
              ";Total mass of structure BOM [kg]: ;3140.000\r\n");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(BomExport, OpensTheWorkbookBesideTheModule) {
    open("Plate");
    showModel();

    exportBom();

    ASSERT_EQ(session->openedByShell().size(), 1U);
    EXPECT_EQ(host::shell_requests::recordedKinds(),
              std::vector<StandInTarget>{StandInTarget::File});
    const std::string opened = session->openedByShell().front();
    EXPECT_EQ(opened.substr(opened.rfind('\\')), "\\TarnixBOM.xlsm");
}

TEST_F(BomExport, EndsWithTheExceptionThatTheButtonsIdThrows) {
    open("Plate");
    showModel();

    session->click(kExportButton);

    EXPECT_EQ(uncaughtExceptions(),
              "std::invalid_argument: invalid stoi argument in OnInputChanged of "
              "QEMA_btnExportXls");
    EXPECT_TRUE(session->dialogOpen());
}

TEST_F(BomExport, WithoutTheMassFieldKeepsTheLinesAndOpensNothing) {
    open("Plate  number=P-1");
    showModel();
    const adsk::core::Ptr<adsk::core::CommandInputs> inputs = session->dialog()->commandInputs();
    ASSERT_TRUE(inputs->itemById("idAllMass")->deleteMe());

    exportBom();

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of QEMA_btnExportXls");
    EXPECT_EQ(csv(),
              "Pos.;Part Number;BOM Structure;\r\n"
              "1;P-1;Produce;\r\n"
              "\r\n");
    EXPECT_TRUE(session->openedByShell().empty());
}

/// A copy of the add-in under another name, in a folder that goes with the test.
class RenamedExport : public BomDialogTest {
protected:
    [[nodiscard]] bool runsAtStart() const override { return false; }

    void useAddinCalled(const std::string& name) {
        namespace fs = std::filesystem;
        host::SessionOptions with = addinOptions();
        const fs::path copy = place_.path() / name;
        fs::create_directories(copy);
        fs::copy_file(with.addin / "Tarnix.dll", copy / (name + ".dll"));
        fs::copy_file(with.addin / "Tarnix.manifest", copy / (name + ".manifest"));
        with.addin = copy;
        restart(with);
        ASSERT_TRUE(run());
    }

    TemporaryFolder place_;
};

TEST_F(RenamedExport, LeavesTheTailOfAModuleNameOfMoreThanThirtyCharacters) {
    // With the backslash 35 characters, of which 31 make way: ".dll" stays.
    const std::string name = "TarnixUnderANameOfThirtyLetter";
    ASSERT_EQ(name.size(), 30U);
    useAddinCalled(name);
    open(kBoltsAndPlate);
    showModel();

    exportBom();

    EXPECT_TRUE(std::filesystem::exists(moduleFolder() / "TarnixBOM.csv.dll"));
    EXPECT_FALSE(std::filesystem::exists(moduleFolder() / "TarnixBOM.csv"));
}

TEST_F(RenamedExport, ChangesTheFirstCsvOfThePathAlsoInAFoldersName) {
    useAddinCalled("csvTarnix");
    open(kBoltsAndPlate);
    showModel();

    exportBom();

    ASSERT_EQ(session->openedByShell().size(), 1U);
    EXPECT_TRUE(session->openedByShell().front().ends_with("\\xlsmTarnix\\TarnixBOM.csv"))
        << session->openedByShell().front();
}

}  // namespace
}  // namespace test_support
