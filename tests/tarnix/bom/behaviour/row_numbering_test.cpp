#include "tarnix/bom/behaviour/row_numbering.h"

#include "tarnix/bom/behaviour/table_rows.h"

#include "tests/support/addin_test.h"
#include "tests/tarnix/bom/behaviour/own_dialog.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace test_support {
namespace {

using adsk::core::CommandInputs;
using adsk::core::Ptr;
using adsk::core::TableCommandInput;
using adsk::core::TextBoxCommandInput;
using tarnix::RowNumbers;

/// What the rows at the top so far leave behind: the last number given is `count`.
RowNumbers behindTop(int count) {
    RowNumbers numbers;
    for (int i = 0; i < count; ++i) {
        numbers.nextTop();
    }
    return numbers;
}

/// What rows at the top and one below the last of them leave behind, such as "3.1".
RowNumbers behindNested(int count) {
    RowNumbers numbers = behindTop(count);
    numbers.nextNested({"9.9", 0, 1});
    return numbers;
}

TEST(RowNumbers, CountsTheRowsAtTheTop) {
    RowNumbers numbers = behindTop(2);

    EXPECT_EQ(numbers.nextTop(), "3");
}

TEST(RowNumbers, BeginsAtOneBelowARowAtTheTop) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 0, 0}), "3.1");
}

TEST(RowNumbers, CountsLevelsAndNotPlacesWhereTwoOpenAtOnce) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4.7", 0, 0}), "3.2");
}

TEST(RowNumbers, CountsOnBesideARowOfTheSameDepth) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 1, 0}), "3.2");
}

TEST(RowNumbers, BeginsAtOneBesideARowOfTheSameDepthThatHadANumberOfTheTop) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 1, 0}), "3.1");
}

TEST(RowNumbers, CountsOnBehindADeeperRowWhereTheNextOneIsDeeper) {
    RowNumbers numbers = behindNested(3);
    numbers.nextNested({"9.9.9", 1, 1});

    // The last number is 3.1.1; of its first three characters the part behind the dot is 1.
    EXPECT_EQ(numbers.nextNested({"5.4", 2, 2}), "3.2");
}

TEST(RowNumbers, TakesTheDotFromTheRowsOwnPosition) {
    RowNumbers numbers = behindNested(3);

    // The dot of 15.4 is at place 2, where the last number, 3.1, has its second digit.
    EXPECT_THROW(
        {
            try {
                numbers.nextNested({"15.4", 2, 2});
            } catch (const std::invalid_argument& error) {
                EXPECT_STREQ(error.what(), "invalid stoi argument");
                throw;
            }
        },
        std::invalid_argument);
}

TEST(RowNumbers, BeginsAtOneBehindADeeperRowWithANumberOfOneDigit) {
    EXPECT_EQ(behindTop(3).nextNested({"5.4", 2, 2}), "3.1");
}

TEST(RowNumbers, CountsOnBehindADeeperRowWithALongerNumberOfTheTop) {
    RowNumbers numbers = behindTop(12);

    EXPECT_THROW(
        {
            try {
                numbers.nextNested({"12.4", 2, 2});
            } catch (const std::out_of_range& error) {
                EXPECT_STREQ(error.what(), "invalid string position");
                throw;
            }
        },
        std::out_of_range);
}

TEST(RowNumbers, RepeatsTheNumberBehindADeeperRowWhereTheNextOneIsAsDeep) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 2, 1}), "3.1");
}

TEST(RowNumbers, TakesOneOffTheRowsOwnNumberBehindADeeperRowWhereTheNextOneIsHigher) {
    EXPECT_EQ(behindNested(3).nextNested({"5.4", 2, 0}), "5.3");
}

TEST(RowNumbers, RaisesWhereThePositionHoldsNoNumber) {
    EXPECT_THROW(behindNested(3).nextNested({"5.x", 2, 0}), std::invalid_argument);
}

/// A table whose second column holds text boxes.
class Renumbering : public AddinTest {
protected:
    /// Makes a table with a header and a row for each position.
    void show(const std::vector<std::string>& positions) {
        dialog_ =
            std::make_unique<OwnDialog>("OwnPositions", [&](const Ptr<CommandInputs>& inputs) {
                rows_ = inputs->addTableCommandInput("own", "", 2, "1:1");
                addRow(inputs, "Pos.");
                for (const std::string& position : positions) {
                    addRow(inputs, position);
                }
            });
        dialog_->open();
    }

    void addRow(const Ptr<CommandInputs>& inputs, const std::string& position) {
        const int row = rows_->rowCount();
        rows_->addCommandInput(inputs->addBoolValueInput("", "", false), row, 0);
        rows_->addCommandInput(inputs->addTextBoxCommandInput("", "", position, 1, true), row, 1);
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

    std::unique_ptr<OwnDialog> dialog_;
    Ptr<TableCommandInput> rows_;
};

TEST_F(Renumbering, LeavesAWholeTableAsItIs) {
    show({"1", "1.1", "1.2", "2", "3", "3.1"});

    tarnix::renumberVisibleRows(rows_);

    EXPECT_EQ(positions(), text(R"(
        1
        1.1
        1.2
        2
        3
        3.1)"));
}

TEST_F(Renumbering, ClosesTheGapsOfHiddenRows) {
    show({"1", "2", "2.1", "2.2", "3"});
    rows_->getInputAtPosition(1, 0)->isVisible(false);

    tarnix::renumberVisibleRows(rows_);

    EXPECT_EQ(positions(), text(R"(
        1
        1
        1.1
        1.2
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

TEST_F(Renumbering, OfARowWithoutAPositionRaises) {
    show({"1", "2"});
    rows_->removeInput(2, 1);

    EXPECT_THROW(tarnix::renumberVisibleRows(rows_), std::exception);
}

}  // namespace
}  // namespace test_support
