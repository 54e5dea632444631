#include "tarnix/bom/behaviour/row_numbering.h"

#include "tarnix/bom/behaviour/open_dialog.h"

#include "tests/support/addin_test.h"
#include "tests/tarnix/bom/behaviour/synthetic_dialog.h"

#include <gtest/gtest.h>

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace test_support {
namespace {

using namespace adsk::core;

/// A table whose second column holds text boxes.
class Renumbering : public AddinTest {
protected:
    /// Makes a table with a header and a row for each position.
    void show(const std::vector<std::string>& positions) {
        dialog_ = std::make_unique<SyntheticDialog>(
            "SyntheticPositions", [&](const Ptr<CommandInputs>& inputs) {
                rows_ = inputs->addTableCommandInput("synthetic", "", 2, "1:1");
                addRow(inputs, "Pos.");
                for (const std::string& position : positions) {
                    addRow(inputs, position);
                }
            });
        dialog_->open();
    }

    /// Takes a row out of sight.
    void hide(int row) { rows_->getInputAtPosition(row, 0)->isVisible(false); }

    void addRow(const Ptr<CommandInputs>& inputs, const std::string& position) {
        const int row = rows_->rowCount();
        rows_->addCommandInput(inputs->addBoolValueInput("", "", false), row, 0);
        rows_->addCommandInput(inputs->addTextBoxCommandInput("", "", position, 1, true), row, 1);
    }

    /// The positions after a renumbering of rows with these positions.
    std::string renumbered(const std::vector<std::string>& before,
                           const std::vector<int>& hidden = {}) {
        show(before);
        for (const int row : hidden) {
            hide(row);
        }
        tarnix::renumberVisibleRows(rows_);
        return positions();
    }

    /// What the renumbering throws; empty if nothing.
    [[nodiscard]] std::string thrownByRenumbering() const {
        try {
            tarnix::renumberVisibleRows(rows_);
        } catch (const std::exception& error) {
            return error.what();
        }
        return "";
    }

    [[nodiscard]] Ptr<TextBoxCommandInput> box(int row) const {
        return rows_->getInputAtPosition(row, 1);
    }

    /// The positions that the table shows without their indent, a line for each data row.
    [[nodiscard]] std::string positions() const {
        std::string lines;
        for (int row = 1; row < rows_->rowCount(); ++row) {
            lines += (lines.empty() ? "" : "\n") + tarnix::positionOfRow(rows_, row);
        }
        return lines;
    }

    std::unique_ptr<SyntheticDialog> dialog_;
    Ptr<TableCommandInput> rows_;
};

TEST_F(Renumbering, LeavesAWholeTableAsItIs) {
    EXPECT_EQ(renumbered({"1", "1.1", "1.2", "2", "3", "3.1"}), text(R"(
        1
        1.1
        1.2
        2
        3
        3.1)"));
}

TEST_F(Renumbering, ClosesTheGapsOfHiddenRows) {
    EXPECT_EQ(renumbered({"1", "2", "2.1", "2.2", "3"}, /*hidden=*/{1}), text(R"(
        1
        1
        1.1
        1.2
        2)"));
}

// How a deeper row, one of the same depth and the first below the top are numbered.
TEST_F(Renumbering, CountsLevelsWhereTwoOpenAtOnce) {
    // Row 3 is two levels below the 2. Row 4 then is one level below the 2.2 above it.
    EXPECT_EQ(renumbered({"1", "2", "2.1.1", "2.1.2"}), text(R"(
        1
        2
        2.2
        2.2.1)"));
}

TEST_F(Renumbering, ReadsTheNewNumberOfTheRowBefore) {
    // By its old position row 2 is deeper than row 3; by the 1.2 that it got it is as deep.
    EXPECT_EQ(renumbered({"1", "1.1.1", "1.1"}), text(R"(
        1
        1.2
        1.3)"));
}

TEST_F(Renumbering, BeginsAtOneAfterAHiddenRowOfTheSameDepth) {
    // The last number is 1, which has no dot. After a row that shows, row 3 would have got
    // 1.2 for its two levels.
    EXPECT_EQ(renumbered({"1", "1.1.1", "1.1.2", "1.1.3"}, /*hidden=*/{2}), text(R"(
        1
        1.1.1
        1.1
        1.1.1)"));
}

// The first row, before which there is the header: "Pos." has a dot.
TEST_F(Renumbering, TakesTheHeaderForARowOfDepthOne) {
    EXPECT_EQ(renumbered({"1.1", "1.2"}), text(R"(
        .1
        .2)"));
}

TEST_F(Renumbering, GoesOneLevelDeeperThanTheHeader) {
    EXPECT_EQ(renumbered({"1.1.1", "2"}), text(R"(
        .1
        1)"));
}

TEST_F(Renumbering, ComparesWithAHiddenFirstRowAndNotWithTheHeader) {
    show({"1.1.1", "1.2"});
    hide(1);

    tarnix::renumberVisibleRows(rows_);

    // Row 2 is higher than the hidden row and the last one: it repeats the number before it, which
    // is none. Beside the header it would have got ".1".
    EXPECT_EQ(positions(), "1.1.1\n");
    EXPECT_EQ(box(2)->formattedText(), "<p><span style=\"color:#000000\"><b></b></span></p>");
}

// A row after a deeper one, when the row after it is deeper again.
TEST_F(Renumbering, CountsOnAfterADeeperRowWhereTheNextOneIsDeeper) {
    EXPECT_EQ(renumbered({"1", "1.1", "1.1.1", "1.2", "1.2.1"}), text(R"(
        1
        1.1
        1.1.1
        1.2
        1.2.1)"));
}

TEST_F(Renumbering, CountsOnWithTheNewNumbersAfterAGap) {
    // Row 4 is as deep as the hidden row 3, and begins at one below the 1 that row 2 got.
    EXPECT_EQ(renumbered({"1", "2", "2.1", "2.2", "2.2.1", "2.3", "2.3.1"}, /*hidden=*/{1, 3}),
              text(R"(
        1
        1
        2.1
        1.1
        1.1.1
        1.2
        1.2.1)"));
}

TEST_F(Renumbering, BeginsAtOneAfterADeeperHiddenRowWhereTheNextOneIsDeeper) {
    // The last number has one digit. Row 4 then is two levels below the 1.1 above it.
    EXPECT_EQ(renumbered({"1", "1.1.1.1", "1.1.2", "1.1.2.1"}, /*hidden=*/{2}), text(R"(
        1
        1.1.1.1
        1.1
        1.1.2)"));
}

TEST_F(Renumbering, LooksAtAHiddenRowAfter) {
    // Before the 2 that is seen next, row 4 would have got 1.1.
    EXPECT_EQ(renumbered({"1", "1.1", "1.1.1", "1.2", "1.2.1", "2"}, /*hidden=*/{5}), text(R"(
        1
        1.1
        1.1.1
        1.2
        1.2.1
        2)"));
}

TEST_F(Renumbering, ThrowsWhereThePlaceOfTheDotIsBeyondTheLastNumber) {
    show({"1", "1.1", "9.9.9", "15.4", "15.4.1"});
    hide(3);

    EXPECT_EQ(thrownByRenumbering(), "invalid stoi argument");
    EXPECT_EQ(positions(), text(R"(
        1
        1.1
        9.9.9
        15.4
        15.4.1)"));
}

// A row after a deeper one, when the row after it is as deep as itself.
TEST_F(Renumbering, RepeatsTheNumberAfterADeeperRowWhereTheNextOneIsAsDeep) {
    // The repeated number makes each following row one after a deeper row.
    EXPECT_EQ(renumbered({"1", "1.1", "1.1.1", "1.2", "1.3", "1.4"}), text(R"(
        1
        1.1
        1.1.1
        1.1.1
        1.1.1
        1.1.1)"));
}

TEST_F(Renumbering, OfTheLastRowTakesItsOwnDepthForTheNext) {
    EXPECT_EQ(renumbered({"1", "1.1", "1.1.1", "1.2"}), text(R"(
        1
        1.1
        1.1.1
        1.1.1)"));
}

// A row after a deeper one, when the row after it is higher.
TEST_F(Renumbering, TakesOneOffAfterADeeperRowWhereTheNextOneIsHigher) {
    EXPECT_EQ(renumbered({"1", "1.1", "1.1.1", "1.5", "2", "2.1"}), text(R"(
        1
        1.1
        1.1.1
        1.4
        2
        2.1)"));
}

TEST_F(Renumbering, ThrowsWhereTheNumberToTakeOneOffIsNone) {
    show({"1", "1.1", "1.1.1", "1.x", "2"});

    EXPECT_EQ(thrownByRenumbering(), "invalid stoi argument");
}

TEST_F(Renumbering, LooksAtAHiddenRowBefore) {
    // Beside the 1.1 that is seen before it, row 4 would have got 1.2.
    EXPECT_EQ(renumbered({"1", "1.1", "1.2.1", "1.5", "2"}, /*hidden=*/{3}), text(R"(
        1
        1.1
        1.2.1
        1.4
        2)"));
}

TEST_F(Renumbering, IndentsByWhiteUnderscores) {
    show({"1", "1.1"});

    tarnix::renumberVisibleRows(rows_);

    EXPECT_EQ(box(1)->formattedText(), "<p><span style=\"color:#000000\"><b>1</b></span></p>");
    EXPECT_EQ(box(2)->formattedText(),
              "<p><span style=\"color:#FFFFFF\">_</span>"
              "<span style=\"color:#000000\"><b>1.1</b></span></p>");
}

TEST_F(Renumbering, LeavesTheNamesOfButtonsAlone) {
    open(R"(
        Bolt
        Plate
        Rod)");
    showStructure();

    session->choose("bomStructure_1", "Reference");

    EXPECT_EQ(table(), text(R"(
        2 | Part | Plate
        3 | Part | Rod)"));
}

TEST_F(Renumbering, OfARowWithoutAPositionThrows) {
    show({"1", "2"});
    rows_->removeInput(2, 1);

    EXPECT_THROW(tarnix::renumberVisibleRows(rows_), std::exception);
}

}  // namespace
}  // namespace test_support
