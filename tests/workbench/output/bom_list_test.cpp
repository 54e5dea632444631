#include "workbench/output/bom_list.h"

#include "host/design/reading_warning.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

using host::TableCell;
using host::TableView;
using test_support::text;
using workbench::BomList;
using workbench::console::Charset;

namespace {

TableCell cell(TableCell::Kind kind, const std::string& shown, const std::string& picture = "") {
    return {kind, 0, "", shown, picture, false};
}

TableCell caption(const std::string& shown) { return cell(TableCell::Kind::Button, shown); }

TableCell textCell(const std::string& shown) { return cell(TableCell::Kind::Text, shown); }

/// A table with a picture, a number, a tree drawing and a name in each row.
TableView smallTable() {
    return {"Structure",
            {0, 1, 2, 3},
            {{0, {caption(""), caption("Pos."), caption(""), caption("Part Number")}},
             {1,
              {cell(TableCell::Kind::Picture, "", "Asm"), textCell("1"), textCell(""),
               textCell("Frame")}},
             {3,
              {cell(TableCell::Kind::Picture, "", "Part"), textCell("2"), textCell("├──"),
               textCell("Bolt \"M8\"")}}}};
}

}  // namespace

TEST(BomList, TheFirstRowOfTheTableHoldsTheCaptions) {
    const BomList list = workbench::readBomList(smallTable());

    EXPECT_EQ(list.captions, (std::vector<std::string>{"", "Pos.", "", "Part Number"}));
    EXPECT_EQ(list.keys, (std::vector<std::string>{"Image", "Pos.", "Tree", "Part Number"}));
    ASSERT_EQ(list.rows.size(), 2U);
    EXPECT_EQ(list.rows[0], (std::vector<std::string>{"Asm", "1", "", "Frame"}));
}

TEST(BomList, PicturesBecomeSignsThatAreIndentedAsATree) {
    BomList list = workbench::readBomList(smallTable());
    list.places = {{.level = 1, .path = "Frame:1"}, {.level = 2, .path = "Frame:1+Bolt:1"}};

    EXPECT_EQ(workbench::asTable(list, Charset::Utf8), text(R"(
             Pos.  Part Number
        ───  ────  ───────────
        ▸       1  Frame
          ·     2  Bolt "M8"
        )") + "\n");
    EXPECT_EQ(workbench::asTable(list, Charset::Ascii), text(R"(
             Pos.  Part Number
        ---  ----  -----------
        >       1  Frame
          .     2  Bolt "M8"
        )") + "\n");
}

TEST(BomList, RowsWhoseMaterialIsAssumedSaySo) {
    BomList list{{"Part"}, {"Part"}, {{"Bolt"}, {"Nut"}}, "", ""};
    list.places = {{.level = 1, .path = "Bolt:1"},
                   {.level = 1, .path = "Nut:1", .isAssumed = true}};

    EXPECT_EQ(workbench::asTable(list, Charset::Utf8), text(R"(
        Part  Material
        ────  ────────
        Bolt
        Nut   assumed
        )") + "\n");
}

TEST(BomList, TheTotalIsBelowTheTable) {
    BomList list{{"Part"}, {"Part"}, {{"Bolt"}}, "Total mass [kg] : ", "1.500"};

    EXPECT_EQ(workbench::asTable(list, Charset::Utf8),
              "Part\n────\nBolt\n\nTotal mass [kg] : 1.500\n");
}

TEST(BomList, JsonHasAnObjectForEachRow) {
    BomList list = workbench::readBomList(smallTable());
    list.places = {{.level = 1, .path = "Frame:1"},
                   {.level = 2, .path = "Frame:1+Bolt:1", .isAssumed = true}};
    const host::ReadingWarning warning{.code = "density-range",
                                       .file = "a.step",
                                       .text = "is no density",
                                       .component = "",
                                       .value = 860000,
                                       .unit = "kg/m3"};

    EXPECT_EQ(workbench::asJson(list, {warning}), text(R"(
        {
          "rows": [
            {
              "Image": "Asm",
              "Pos.": "1",
              "Tree": "",
              "Part Number": "Frame",
              "Level": 1,
              "Path": "Frame:1",
              "Material assumed": false
            },
            {
              "Image": "Part",
              "Pos.": "2",
              "Tree": "├──",
              "Part Number": "Bolt \"M8\"",
              "Level": 2,
              "Path": "Frame:1+Bolt:1",
              "Material assumed": true
            }
          ],
          "warnings": [
            {
              "code": "density-range",
              "text": "a.step: is no density",
              "value": 860000.0,
              "unit": "kg/m3"
            }
          ]
        }
        )") + "\n");
}

TEST(BomList, EqualCaptionsGetKeysOfTheirOwn) {
    TableView table{"t", {0, 1}, {{0, {caption("Mass"), caption("Mass")}}}};

    EXPECT_EQ(workbench::readBomList(table).keys, (std::vector<std::string>{"Mass", "Mass 2"}));
}

TEST(BomList, AColumnCalledLevelHasAnotherKey) {
    TableView table{"t", {0, 1}, {{0, {caption("Level"), caption("Path")}}}};

    EXPECT_EQ(workbench::readBomList(table).keys, (std::vector<std::string>{"Level 2", "Path 2"}));
}
