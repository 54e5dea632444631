#include "tests/support/addin_test.h"
#include "tests/support/files.h"

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <vector>

/// Hosts differ in which of the changes that code makes they report to the handlers. The dialog has
/// to come out the same on all of them.
namespace test_support {
namespace {

using host::CodeChanges;

/// What the user sees and keeps of one use of the dialog.
struct Outcome {
    std::string configuration;  ///< the table of the columns before it is saved
    std::string settings;       ///< bytes of the settings file
    std::string structure;      ///< the parts list before it is accepted
    std::string design;         ///< the components after it was

    bool operator==(const Outcome&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Outcome& outcome) {
    return out << outcome.configuration << "\n"
               << outcome.settings << "\n"
               << outcome.structure << "\n"
               << outcome.design;
}

/// A line for each component: name, number, attributes.
std::string describe(const host::DesignData& design) {
    std::string lines;
    for (const host::ComponentData& component : design.components) {
        lines += component.name + " | " + component.partNumber + " |";
        for (const host::AttributeData& attribute : component.attributes) {
            lines += " " + attribute.name + "=" + attribute.value;
        }
        lines += "\n";
    }
    return lines;
}

class ChangesByCode : public AddinTest {
protected:
    /// Chooses columns, one of them by a heading, which the add-in takes back by code.
    void chooseColumns() {
        showConfiguration();
        session->choose("iProperty_0", "Mass");
        session->paste("nameCol5", "Weight");
        session->choose("iProperty_1", "Quantity");
        session->choose("iProperty_1", "--- User Property ---");
        session->choose("iProperty_2", "Part Name");
        session->choose("iProperty_3", "Supplier");
    }

    /// Hides a row, sorts, and edits a cell.
    void workOnStructure() {
        showStructure();
        session->choose("bomStructure_2", "Reference");
        session->choose("QEMA_droDown_AscDesc", "Descending");
        session->click("partNumberOcc_0");
        session->paste("partNumberOcc_1", "F-9");
    }

    void startHostThatReports(CodeChanges reported) {
        host::SessionOptions with = addinOptions();
        with.host.codeChanges = reported;
        restart(with);
        EXPECT_TRUE(run());
    }

    /// Unfolds an assembly and the one in it, and folds that again: the graphs that this writes are
    /// changes too.
    void fold(CodeChanges reported) {
        startHostThatReports(reported);
        open(R"(
            Frame
              Leg assembly
                Leg
              Foot
            Bolt)");
        showModel();
        session->click("modelColapseRow_1");
        session->click("modelColapseRow_2");
        session->click("modelColapseRow_2");
    }

    /// Uses the whole dialog in a host that reports these changes.
    Outcome use(CodeChanges reported) {
        startHostThatReports(reported);
        open(R"(
            Frame  box=10x10x1 material=Sheet:0.01 property=Supplier/Acme
            Bolt  box=10x5x1 material=Sheet:0.01
            Washer  box=1x1x1 material=Sheet:0.01 property=Supplier/Best)");
        Outcome outcome;
        chooseColumns();
        outcome.configuration = shownTable();
        session->click("QEMA_btnSaveConfigBom");
        outcome.settings = readFile(settingsFile());
        session->cancel();
        openBom();
        workOnStructure();
        outcome.structure = table();
        session->ok();
        outcome.design = describe(session->design());
        return outcome;
    }
};

TEST_F(ChangesByCode, LeaveTheTableAndTheDesignOfAHostThatReportsNone) {
    const Outcome outcome = use(CodeChanges::None);

    EXPECT_EQ(outcome.structure, text(R"(
        3 | Part | Washer | 0.010 | Washer | Best
        1 | Part | F-9    | 1.000 | Frame  | Acme)"));
    EXPECT_EQ(outcome.design.substr(outcome.design.find('\n') + 1), text(R"(
        Frame | F-9 | QEMA_Supplier=Acme Produce=1 Buy= AsPart= Divided= Reference= QEMA_Mass=1.000
        Bolt | Bolt | Produce= Buy= AsPart= Divided= Reference=1 QEMA_Mass=0.500
        Washer | Washer | QEMA_Supplier=Best Produce=1 Buy= AsPart= Divided= Reference= QEMA_Mass=0.010
        )") + "\n");
}

TEST_F(ChangesByCode, OfListsMakeNoDifferenceWhereTheyAreReported) {
    const Outcome reported = use(CodeChanges::Lists);

    EXPECT_EQ(reported, use(CodeChanges::None));
}

TEST_F(ChangesByCode, OfAnyKindMakeNoDifferenceWhereTheyAreReported) {
    const Outcome reported = use(CodeChanges::All);

    EXPECT_EQ(reported, use(CodeChanges::None));
}

TEST_F(ChangesByCode, ThatFoldingMakesLeaveTheRowsOfAHostThatReportsNone) {
    fold(CodeChanges::None);

    EXPECT_EQ(table(), text(R"(
        1   | UnColapseAsm | Frame
        1.1 | ColapseAsm   | Leg assembly
        1.2 | Part         | Foot
        2   | Part         | Bolt)"));
}

TEST_F(ChangesByCode, ThatFoldingMakesMakeNoDifferenceWhereTheyAreReported) {
    fold(CodeChanges::All);
    const std::string reported = shownTable();
    fold(CodeChanges::None);

    EXPECT_EQ(reported, shownTable());
}

}  // namespace
}  // namespace test_support
