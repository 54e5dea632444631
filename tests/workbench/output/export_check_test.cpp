#include "workbench/output/export_check.h"

#include <gtest/gtest.h>

#include <string>

using workbench::BomList;
using workbench::whyIncomplete;

namespace {

constexpr const char* kEnd = ";Total mass: ;1.500\r\n";

const std::string kWhole = "Pos.;Part;\r\n1;Bolt;\r\n2;Nut;\r\n\r\n;Total mass: ;1.500\r\n";

BomList twoRows() {
    return {{"Pos.", "Part"}, {"Pos.", "Part"}, {{"1", "Bolt"}, {"2", "Nut"}}, "", "1.500"};
}

}  // namespace

TEST(ExportCheck, AWholeExportHasAllRowsAndTheMass) {
    EXPECT_EQ(whyIncomplete(kWhole, twoRows(), kEnd), "");
}

TEST(ExportCheck, AnExportThatWasCutAnywhereIsIncomplete) {
    for (std::size_t size = 1; size < kWhole.size(); ++size) {
        EXPECT_NE(whyIncomplete(kWhole.substr(0, size), twoRows(), kEnd), "") << size;
    }
    EXPECT_EQ(whyIncomplete(kWhole.substr(0, 20), twoRows(), kEnd),
              "the export is incomplete: it has 1 of 5 lines; is the disk full?");
}

TEST(ExportCheck, AnExportThatIsMissingIsIncomplete) {
    EXPECT_EQ(whyIncomplete("", twoRows(), kEnd), "the add-in exported nothing: is the disk full?");
}

TEST(ExportCheck, AListWithoutRowsExportsNothing) { EXPECT_EQ(whyIncomplete("", {}, kEnd), ""); }

TEST(ExportCheck, ALineFeedInACellMakesALine) {
    BomList list = twoRows();
    list.rows[0][1] = "Bolt\nM5";

    EXPECT_EQ(whyIncomplete("Pos.;Part;\r\n1;Bolt\r\nM5;\r\n2;Nut;\r\n\r\n;Total mass: ;1.500\r\n",
                            list, kEnd),
              "");
}
