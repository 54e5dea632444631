#include "workbench/dialogs/edited_list.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using workbench::EditedList;
using workbench::parseEditedList;
using Fields = std::vector<std::string>;

namespace {

Fields textsOf(const EditedList::Line& line) {
    Fields texts;
    for (const EditedList::Field& each : line.fields) {
        texts.push_back(each.text);
    }
    return texts;
}

/// The fields of the only line below the captions.
Fields only(const std::string& text) {
    const EditedList list = parseEditedList(text, "a.csv");
    return list.lines.size() == 1 ? textsOf(list.lines.front()) : Fields{"not one line"};
}

/// Of each line below the captions its number, and the known line that it is or its fields.
std::string linesOf(const std::string& text, const std::vector<std::string>& known) {
    std::string lines;
    for (const EditedList::Line& line : parseEditedList(text, "a.csv", known).lines) {
        lines += std::to_string(line.number) + (line.known ? " is " : ":");
        lines += line.known ? std::to_string(*line.known) : "";
        for (const EditedList::Field& each : line.fields) {
            lines += " [" + each.text + "]";
        }
        lines += "\n";
    }
    return lines;
}

}  // namespace

TEST(EditedList, IsAnExportAsItIs) {
    const EditedList list = parseEditedList(
        "Pos.;Part Number;\r\n1;Bolt;\r\n\r\n;Total mass of structure BOM [kg]: ;2.000\r\n",
        "a.csv");

    EXPECT_EQ(list.captions, (Fields{"Pos.", "Part Number", ""}));
    ASSERT_EQ(list.lines.size(), 1U);
    EXPECT_EQ(list.lines[0].number, 2U);
    EXPECT_EQ(textsOf(list.lines[0]), (Fields{"1", "Bolt", ""}));
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
    EXPECT_EQ(textsOf(list.lines[0]), Fields{"a\nb"});
    EXPECT_EQ(list.lines[1].number, 4U);
}

TEST(EditedList, QuotesAreKeptBesideAField) {
    const EditedList list = parseEditedList("Part;Mass\n\"Bolt\";1\n", "a.csv");

    ASSERT_EQ(list.lines.size(), 1U);
    EXPECT_EQ(list.lines[0].fields[0].text, "Bolt");
    EXPECT_EQ(list.lines[0].fields[0].raw, "\"Bolt\"");
    EXPECT_EQ(list.lines[0].fields[1].raw, "1");
}

TEST(EditedList, KnownLinesAreTakenAsAWhole) {
    const std::vector<std::string> known = {"1;Foot; soft;4;", "2;\"Nut;", "3;M5\nlong;1;"};

    EXPECT_EQ(linesOf("Pos.;Part;Count;\r\n"
                      "1;Foot; soft;4;\r\n"
                      "2;\"Nut;\r\n"
                      "3;M5\r\nlong;1;\r\n"
                      "4;Bolt\";1;\r\n",
                      known),
              "2 is 0\n3 is 1\n4 is 2\n6: [4] [Bolt\"] [1] []\n");
}

TEST(EditedList, KnownLinesMayEndInOtherSeparators) {
    EXPECT_EQ(linesOf("Pos.;Part;;\n1;Foot; soft;;\n2;Bolt", {"1;Foot; soft;", "2;Bolt;"}),
              "2 is 0\n3 is 1\n");
}

TEST(EditedList, AKnownLineThatGoesOnIsAnotherLine) {
    EXPECT_EQ(linesOf("Pos.;Part;\n1;Bolt M5;\n1;Bo;\n", {"1;Bolt;"}),
              "2: [1] [Bolt M5] []\n3: [1] [Bo] []\n");
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
