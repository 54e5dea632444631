#include "workbench/output/text_table.h"

#include "tests/support/text.h"

#include <gtest/gtest.h>

using test_support::text;
using workbench::TextTable;
using workbench::console::Charset;

TEST(TextTable, NumbersAreRightAlignedUnderTheirCaption) {
    TextTable table({"Pos.", "Part", "Mass [kg]"}, Charset::Utf8);
    table.add({"9", "Bolt", "0.5"});
    table.add({"10", "Frame", "12.25"});

    EXPECT_EQ(table.text(), text(R"(
        Pos.  Part   Mass [kg]
        ────  ─────  ─────────
           9  Bolt         0.5
          10  Frame      12.25
        )") + "\n");
}

TEST(TextTable, TheWidestWordsAreCutOnANarrowTerminal) {
    TextTable table({"Part", "Material", "Mass"}, Charset::Utf8);
    table.add({"Bolt with a long name", "Stainless steel", "0.5"});
    table.add({"Nut", "Steel", "1200.25"});

    EXPECT_EQ(table.text(/*indent=*/0, /*width=*/35), text(R"(
        Part          Material         Mass
        ────────────  ────────────  ───────
        Bolt with...  Stainless...      0.5
        Nut           Steel         1200.25
        )") + "\n");
}

TEST(TextTable, NumbersAndCaptionsStayWholeHoweverNarrowItIs) {
    TextTable table({"Part", "BOM Structure", "Mass"}, Charset::Utf8);
    table.add({"Bolt with a long name", "Produce", "1200.25"});

    EXPECT_EQ(table.text(/*indent=*/0, /*width=*/1), text(R"(
        Part      BOM Structure     Mass
        ────────  ─────────────  ───────
        Bolt ...  Produce        1200.25
        )") + "\n");
}

TEST(TextTable, WideCharactersKeepTheColumnsInLine) {
    TextTable table({"Name", "Material"}, Charset::Utf8);
    table.add({"鋼板", "鋼"});
    table.add({"Plate", "Steel"});

    EXPECT_EQ(table.text(), text(R"(
        Name   Material
        ─────  ────────
        鋼板   鋼
        Plate  Steel
        )") + "\n");
}

TEST(TextTable, AnEmptyCellLeavesNumbersRightAligned) {
    TextTable table({"Mass"}, Charset::Utf8);
    table.add({""});
    table.add({"1.5"});

    EXPECT_EQ(table.text(), "Mass\n────\n\n 1.5\n");
}

TEST(TextTable, CaptionsAloneHaveTheirRule) {
    EXPECT_EQ(TextTable({"Pos.", "Part"}, Charset::Utf8).text(), "Pos.  Part\n────  ────\n");
}

TEST(TextTable, MissingCellsAreEmptyAndSurplusOnesDropped) {
    TextTable table({"A", "B"}, Charset::Utf8);
    table.add({"x"});
    table.add({"x", "y", "z"});

    EXPECT_EQ(table.text(), "A  B\n─  ─\nx\nx  y\n");
}

TEST(TextTable, LineBreaksInACellDoNotBreakTheTable) {
    TextTable table({"A", "B"}, Charset::Utf8);
    table.add({"x\ny", "z"});

    EXPECT_EQ(table.text(), "A    B\n───  ─\nx y  z\n");
}
