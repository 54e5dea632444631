#include "workbench/dialogs/edited_list.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using workbench::EditedList;
using workbench::parseEditedList;
using Fields = std::vector<std::string>;

namespace {

/// The fields of the only line below the captions.
Fields only(const std::string& text) {
    const EditedList list = parseEditedList(text, "a.csv");
    return list.lines.size() == 1 ? list.lines.front().fields : Fields{"not one line"};
}

}  // namespace

TEST(EditedList, IsAnExportAsItIs) {
    const EditedList list = parseEditedList(
        "Pos.;Part Number;\r\n1;Bolt;\r\n\r\n;Total mass of structure BOM [kg]: ;2.000\r\n",
        "a.csv");

    EXPECT_EQ(list.captions, (Fields{"Pos.", "Part Number", ""}));
    ASSERT_EQ(list.lines.size(), 1U);
    EXPECT_EQ(list.lines[0].number, 2U);
    EXPECT_EQ(list.lines[0].fields, (Fields{"1", "Bolt", ""}));
}

TEST(EditedList, MayHaveCommasOrTabsAndAByteOrderMark) {
    EXPECT_EQ(only("\xEF\xBB\xBFPart,Mass\nBolt;M5,1\n"), (Fields{"Bolt;M5", "1"}));
    EXPECT_EQ(only("Part\tMass\nBolt, M5\t1"), (Fields{"Bolt, M5", "1"}));
}

TEST(EditedList, QuotesOfASpreadsheetAreNotPartOfAField) {
    EXPECT_EQ(only("Part;Mass\n\"Bolt; \"\"M5\"\"\";1\n"), (Fields{"Bolt; \"M5\"", "1"}));
}

TEST(EditedList, QuotesOfTheExportArePartOfAField) {
    EXPECT_EQ(only("Part;Mass\n\"2\" pipe;1\n"), (Fields{"\"2\" pipe", "1"}));
    EXPECT_EQ(only("Part;Mass\n2\" pipe;1\n"), (Fields{"2\" pipe", "1"}));
}

TEST(EditedList, LinesAreCountedThroughQuotedLineBreaks) {
    const EditedList list = parseEditedList("Part\n\"a\nb\"\nc\n", "a.csv");

    ASSERT_EQ(list.lines.size(), 2U);
    EXPECT_EQ(list.lines[0].fields, Fields{"a\nb"});
    EXPECT_EQ(list.lines[1].number, 4U);
}

TEST(EditedList, TextThatIsNotUtf8IsRefused) {
    try {
        parseEditedList("Part\nP\xF8\xEDruba\n", "a.csv");
        FAIL() << "was read";
    } catch (const workbench::Failure& failure) {
        EXPECT_EQ(std::string(failure.what()),
                  "a.csv: is not UTF-8; save the list as \"CSV UTF-8\"");
    }
}

TEST(EditedList, WithoutCaptionsIsRefused) {
    EXPECT_THROW(parseEditedList("", "a.csv"), workbench::Failure);
    EXPECT_THROW(parseEditedList("\n1;Bolt\n", "a.csv"), workbench::Failure);
}
