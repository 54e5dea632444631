#include "tests/tarnix/bom/behaviour/bom_dialog_fixture.h"

#include "host/session/input_actions.h"

#include <gtest/gtest.h>

namespace test_support {
namespace {

using namespace adsk::core;

/// Row 2 is a frame with a leg assembly and a foot; rows 20 and 21 begin with the same digit.
constexpr const char* kFrames = R"(
    P1
    Frame
      Leg assembly
        Leg
      Foot
    P3
    P4
    P5
    P6
    P7
    P8
    P9
    P10
    P11
    P12
    P13
    P14
    P15
    P16
    P17
    P18
    P19
    Box
      Lid
    P21)";

/// Numbers of rows in the design above.
constexpr int kFrame = 2;
constexpr int kLegAssembly = 3;
constexpr int kLeg = 4;
constexpr int kFoot = 5;
constexpr int kBox = 23;
constexpr int kLid = 24;
constexpr int kLast = 25;

class RowCollapse : public BomDialogTest {
protected:
    void SetUp() override {
        BomDialogTest::SetUp();
        open(kFrames);
        showModel();
    }

    void click(int row) { session->click("modelColapseRow_" + std::to_string(row)); }

    [[nodiscard]] Ptr<BoolValueCommandInput> toggle(int row) const {
        return session->input("modelColapseRow_" + std::to_string(row));
    }

    /// The last part of the folder that the toggle has its icon from.
    [[nodiscard]] std::string icon(int row) const {
        const std::string folder = toggle(row)->resourceFolder();
        return folder.substr(folder.rfind('/') + 1);
    }

    [[nodiscard]] std::string graph(int row) const {
        return value("graphPositionOcc_" + std::to_string(row));
    }

    [[nodiscard]] bool shows(int row) const {
        return session->input("modelPartNumberOcc_" + std::to_string(row))->isVisible();
    }
};

TEST_F(RowCollapse, OpensTheDialogWithEverythingFolded) {
    EXPECT_FALSE(shows(kLegAssembly));
    EXPECT_FALSE(shows(kLid));
    EXPECT_EQ(icon(kFrame), "ColapseAsm");
}

TEST_F(RowCollapse, ExpandingShowsTheDirectChildrenOnly) {
    click(kFrame);

    EXPECT_TRUE(shows(kLegAssembly));
    EXPECT_FALSE(shows(kLeg));
    EXPECT_TRUE(shows(kFoot));
    EXPECT_FALSE(shows(kLid));
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RowCollapse, ExpandingSetsTheOtherIconAndAFoldedChildKeepsItsOwn) {
    click(kFrame);

    EXPECT_EQ(icon(kFrame), "UnColapseAsm");
    EXPECT_EQ(icon(kLegAssembly), "ColapseAsm");
    EXPECT_EQ(icon(kFoot), "Part");
}

TEST_F(RowCollapse, ExpandingMarksAnEmptyGraph) {
    click(kFrame);

    EXPECT_EQ(graph(kFrame), "\xE2\x96\x91");
    EXPECT_EQ(graph(kBox), "");
}

TEST_F(RowCollapse, CollapsingHidesEverythingBelowAndNothingThatBeginsAlike) {
    click(kFrame);
    click(kLegAssembly);
    click(kBox);
    ASSERT_TRUE(shows(kLeg));

    click(kFrame);

    EXPECT_FALSE(shows(kLegAssembly));
    EXPECT_FALSE(shows(kLeg));
    EXPECT_FALSE(shows(kFoot));
    EXPECT_TRUE(shows(kBox));
    EXPECT_TRUE(shows(kLid));
    EXPECT_TRUE(shows(kLast));
}

TEST_F(RowCollapse, CollapsingEmptiesTheGraphOfARowAtTheTop) {
    click(kFrame);

    click(kFrame);

    EXPECT_EQ(graph(kFrame), "");
    EXPECT_EQ(icon(kFrame), "ColapseAsm");
}

TEST_F(RowCollapse, CollapsingANestedRowKeepsItsGraph) {
    click(kFrame);
    click(kLegAssembly);
    const std::string before = graph(kLegAssembly);

    click(kLegAssembly);

    EXPECT_NE(before, "");
    EXPECT_EQ(graph(kLegAssembly), before);
    EXPECT_FALSE(shows(kLeg));
}

TEST_F(RowCollapse, ExpandingBringsBackWhatTheChildsToggleShows) {
    click(kFrame);
    click(kLegAssembly);
    click(kFrame);
    ASSERT_FALSE(shows(kLeg));

    click(kFrame);

    EXPECT_TRUE(shows(kLegAssembly));
    EXPECT_TRUE(shows(kLeg));
    EXPECT_EQ(icon(kLegAssembly), "UnColapseAsm");
}

TEST_F(RowCollapse, TheIconOfAHiddenRowGoesByItsToggle) {
    click(kFrame);
    click(kLegAssembly);
    ASSERT_EQ(icon(kLegAssembly), "UnColapseAsm");

    click(kFrame);

    EXPECT_EQ(icon(kLegAssembly), "ColapseAsm");
}

TEST_F(RowCollapse, OfAPartDoesNothing) {
    click(1);

    EXPECT_EQ(icon(1), "Part");
    EXPECT_EQ(graph(1), "");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RowCollapse, OfTheLastRowDoesNothing) {
    click(kLast);

    EXPECT_EQ(icon(kLast), "Part");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RowCollapse, LeavesThePositionColumnAlone) {
    click(kFrame);
    click(kFrame);

    // Column 1 has no width here; the dialog hid the cell of a nested row when it opened.
    EXPECT_TRUE(session->input("positionOcc_2")->isVisible());
    EXPECT_FALSE(session->input("positionOcc_5")->isVisible());
}

TEST_F(RowCollapse, SelectsTheRowsOccurrence) {
    click(kFrame);

    EXPECT_EQ(selected(), "Frame:1");
}

TEST_F(RowCollapse, KeepsFoldedRowsOutOfTheExport) {
    click(kBox);

    exportBom();

    EXPECT_NE(csv().find(";Lid;"), std::string::npos);
    EXPECT_EQ(csv().find(";Leg;"), std::string::npos);
}

TEST_F(RowCollapse, OutlastsAChangeOfTab) {
    click(kFrame);
    click(kLegAssembly);
    click(kLegAssembly);

    showStructure();
    showModel();

    EXPECT_TRUE(shows(kLegAssembly));
    EXPECT_FALSE(shows(kLeg));
    EXPECT_TRUE(shows(kFoot));
    EXPECT_FALSE(shows(kLid));
    EXPECT_EQ(icon(kLegAssembly), "ColapseAsm");
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RowCollapse, OfTheStructureTablesHeaderDoesNothing) {
    showStructure();
    const std::string before = shownTable();

    session->click("colapseRow_0");

    EXPECT_EQ(shownTable(), before);
    EXPECT_EQ(uncaughtExceptions(), "");
}

TEST_F(RowCollapse, OfARowOfTheStructureTableThrows) {
    showStructure();
    const std::string before = shownTable();

    // The user cannot click there: the cell is an image.
    host::reportChange(session->input("colapseRow_1"));

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of colapseRow_1");
    EXPECT_EQ(shownTable(), before);
}

TEST_F(RowCollapse, OfARowBeyondTheTablesEndThrows) {
    // The ids stay, so that the last row's number is one more than the table has.
    ASSERT_TRUE(shownTableInput()->deleteRow(1));
    const std::string before = shownTable();

    click(kLast);

    EXPECT_EQ(uncaughtExceptions(), "std::exception:  in OnInputChanged of modelColapseRow_25");
    EXPECT_EQ(shownTable(), before);
}

TEST_F(RowCollapse, MatchesPositionsAfterAnIndent) {
    const Ptr<adsk::core::StringValueCommandInput> field = session->input("positionOcc_3");
    field->value("`_ -|2.1");

    click(kFrame);

    EXPECT_TRUE(shows(kLegAssembly));
}

}  // namespace
}  // namespace test_support
