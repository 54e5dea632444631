#include "workbench/output/parts_table.h"

#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include <gtest/gtest.h>

#include <string>

using parts::PartsList;
using parts::View;
using test_support::drawn;
using test_support::request;
using test_support::text;

namespace {

std::string partsTableOf(const PartsList& list) {
    return workbench::partsTable(list, {}, workbench::console::Charset::Ascii);
}

}  // namespace

TEST(PartsTable, IndentsTheTree) {
    const PartsList list =
        parts::buildPartsList(drawn(R"(
        Hinge
          Pin
            Spring
        Lid)"),
                              request(View::Indented, "Item,Part Name,Quantity"));

    EXPECT_EQ(partsTableOf(list), text(R"(
        Item   Part Name   Quantity
        -----  ----------  --------
        1      Hinge              1
        1.1      Pin              1
        1.1.1      Spring         1
        2      Lid                1

        4 rows, 2 items
        )") + "\n");
}

TEST(PartsTable, AlignsItemsOfTwoLevelsAsAnOutline) {
    EXPECT_EQ(partsTableOf(parts::buildPartsList(drawn("Hinge\n  Pin\nLid"),
                                                 request(View::Indented, "Item,Quantity"))),
              text(R"(
        Item  Quantity
        ----  --------
        1            1
        1.1          1
        2            1

        3 rows, 2 items
        )") + "\n");
}

TEST(PartsTable, SaysWhatIsAssumed) {
    host::DesignData design =
        drawn("Pin  box=1x1x1 material=S:0.01\nLid  box=1x1x1 material=S:0.01");
    design.components[1].material->densityAssumed = true;

    EXPECT_EQ(partsTableOf(parts::buildPartsList(design, request(View::Parts, "Part Name,Mass"))),
              text(R"(
        Part Name  Mass [kg]  Remark
        ---------  ---------  ----------------
        Pin             0.01  material assumed
        Lid             0.01

        2 rows, 2 items, 0.02 kg (some materials are assumed)
        )") + "\n");
}

TEST(PartsTable, SaysNothingOfMaterialsThatNoColumnRestsOn) {
    host::DesignData design = drawn("Pin  box=1x1x1 material=S:0.01");
    design.components[1].material->nameAssumed = true;

    EXPECT_EQ(partsTableOf(parts::buildPartsList(design, request(View::Parts, "Part Name"))),
              text(R"(
        Part Name
        ---------
        Pin

        1 row, 1 item
        )") + "\n");
}

TEST(PartsTable, NamesAsManyParentsAsThereIsRoomFor) {
    std::string outline;
    for (int number = 1; number <= 12; ++number) {
        outline += "Carrier " + std::to_string(number) + "\n  Screw\n";
    }
    const PartsList list =
        parts::buildPartsList(drawn(outline), request(View::Parts, "Part Name,Used in"));

    EXPECT_EQ(partsTableOf(list), text(R"(
        Part Name  Used in
        ---------  ------------------------------------------------------------
        Screw      Carrier 1 (1); Carrier 2 (1); Carrier 3 (1); Carrier 4 (1...

        1 row, 12 items
        )") + "\n");
    EXPECT_TRUE(parts::cellText(list.rows[0].cells[1], {}).ends_with("; Carrier 12 (1)"));
}

TEST(PartsTable, EndsInConflictsAndPossibleDuplicates) {
    PartsList list = parts::buildPartsList(drawn("Pin  number=P\nBolt  number=P"),
                                           request(View::Parts, "Part Number"));
    list.duplicates = {{.shape = 0, .items = {"A", "B", "C", "D", "E", "F", "G"}}};

    EXPECT_EQ(partsTableOf(list), text(R"(
        Part Number
        -----------
        P

        1 row, 2 items
        conflict: P: different name: Bolt, Pin
        possible duplicates, of one shape: A, B, C, D, E and 2 more
        )") + "\n");
}

TEST(PartsTable, LetsNoNameControlTheTerminal) {
    PartsList list = parts::buildPartsList(drawn("Pin"), request(View::Parts, "Part Name"));
    list.rows[0].cells[0] = std::string("\x1B[31m");
    list.conflicts = {
        {.what = "name", .item = "\x1B[0m", .values = {"a\nb", "c"}, .components = {}}};

    const std::string shown = partsTableOf(list);

    EXPECT_EQ(shown.find('\x1B'), std::string::npos) << shown;
}
