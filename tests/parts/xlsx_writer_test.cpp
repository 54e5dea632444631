#include "parts/xlsx_writer.h"

#include "tests/parts/drawn_list.h"

#include <zip.h>

#include <gtest/gtest.h>

#include <memory>

namespace {

using parts::View;
using test_support::drawn;
using test_support::request;

/// The smallest PNG: one transparent point.
const std::string kPng(
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\1\0\0\0\1\x08\6\0\0\0\x1F\x15\xC4\x89\0\0\0\rIDATx\x9C"
    "c\0\1\0\0\5\0\1\r\n-\xB4\0\0\0\0IEND\xAE\x42\x60\x82",
    67);

/// A file in a workbook; "no file" where it has none of this name.
std::string entryOf(std::string workbook, const std::string& name) {
    zip_error_t error;
    zip_source_t* const source =
        ::zip_source_buffer_create(workbook.data(), workbook.size(), 0, &error);
    zip_t* const archive = ::zip_open_from_source(source, ZIP_RDONLY, &error);
    zip_stat_t about;
    std::string content = "no file";
    if (::zip_stat(archive, name.c_str(), 0, &about) == 0) {
        content.resize(about.size);
        zip_file_t* const file = ::zip_fopen(archive, name.c_str(), 0);
        ::zip_fread(file, content.data(), content.size());
        ::zip_fclose(file);
    }
    ::zip_discard(archive);
    return content;
}

std::string sheetOf(const parts::PartsList& list) {
    return entryOf(xlsxOf(list, {}), "xl/worksheets/sheet1.xml");
}

void expectContains(const std::string& text, const std::string& part) {
    EXPECT_NE(text.find(part), std::string::npos) << part << "\n" << text;
}

/// A frame of 100 cm3 and a hinge, used twice, of two bolts of 50 cm3, all of 0.01 kg/cm3.
constexpr const char* kGate = R"(
    Frame  box=10x10x1 material=Sheet:0.01
    Hinge
      Bolt  box=10x5x1 material=Sheet:0.01
      Bolt
    Hinge)";

TEST(Xlsx, AFlatListIsSummedByItsColumns) {
    const std::string sheet = sheetOf(
        buildPartsList(drawn(kGate), request(View::Parts, "Part Number,Quantity,Total mass")));

    expectContains(sheet, "<c r=\"B4\" s=\"4\"><f>SUBTOTAL(109,B2:B3)</f><v>5</v></c>");
    expectContains(sheet, "<f>SUBTOTAL(109,C2:C3)</f><v>3</v>");
    expectContains(sheet, "<autoFilter ref=\"A1:C3\"/>");
    expectContains(sheet, "<pane ySplit=\"1\"");
}

TEST(Xlsx, APrintedPageHasAllColumnsAndTheHeader) {
    const parts::PartsList list =
        buildPartsList(drawn(kGate), request(View::Parts, "Part Number,Quantity"));

    const std::string sheet = sheetOf(list);
    expectContains(sheet, "<pageSetUpPr fitToPage=\"1\"/>");
    expectContains(sheet, "<pageSetup fitToHeight=\"0\" orientation=\"landscape\"/>");
    expectContains(entryOf(xlsxOf(list, {}), "xl/workbook.xml"), "Parts!$1:$1");
}

TEST(Xlsx, TextsOfDigitsAreNotMarkedAsWrong) {
    const std::string sheet =
        sheetOf(buildPartsList(drawn(kGate), request(View::Parts, "Item,Part Number,Quantity")));

    expectContains(sheet, "<ignoredError sqref=\"A2:C3\" numberStoredAsText=\"1\"/>");
}

TEST(Xlsx, ATreeIsSummedByTheRowsThatCount) {
    const std::string sheet = sheetOf(
        buildPartsList(drawn(kGate), request(View::Indented, "Part Number,Quantity,Total mass")));

    // Rows: Frame, Hinge, Bolt. Quantities without the hinges, masses of the first level.
    expectContains(sheet, "<f>SUMIF(D2:D4,1,B2:B4)</f><v>5</v>");
    expectContains(sheet, "<f>SUMIF(E2:E4,1,C2:C4)</f><v>3</v>");
    expectContains(sheet, "<c r=\"D2\"><v>1</v></c><c r=\"E2\"><v>1</v></c>");
    expectContains(sheet, "<c r=\"D3\"><v>0</v></c><c r=\"E3\"><v>1</v></c>");
    expectContains(sheet, "<c r=\"D4\"><v>1</v></c><c r=\"E4\"><v>0</v></c>");
}

TEST(Xlsx, WhatARowIsNotToBeOrderedWithoutIsRemarkedInIt) {
    host::DesignData design = drawn(R"(
        Pin   number=P box=1x1x1 material=Brass:0.01
        Bolt  number=P box=1x1x1 material=Steel:0.01
        Lid   box=2x1x1 material=Steel:0.01)");
    design.components[2].material->densityAssumed = true;
    parts::PartsList list =
        buildPartsList(design, request(View::Parts, "Part Number,Quantity,Mass"));
    list.duplicates = {{.shape = 0, .items = {"Cap", "Lid"}}};

    const std::string workbook = xlsxOf(list, {});

    const std::string texts = entryOf(workbook, "xl/sharedStrings.xml");
    expectContains(texts, "<si><t>Remark</t></si>");
    expectContains(texts,
                   "<si><t>material assumed; different name: Bolt, Pin; different material: Brass, "
                   "Steel</t></si>");
    expectContains(texts, "<si><t>same shape as Cap</t></si>");
    expectContains(entryOf(workbook, "xl/worksheets/sheet1.xml"), "<autoFilter ref=\"A1:D3\"/>");
}

TEST(Xlsx, RemarksComeBeforeTheHiddenColumnsOfATree) {
    host::DesignData design = drawn(kGate);
    design.components[1].material->nameAssumed = true;

    const std::string sheet =
        sheetOf(buildPartsList(design, request(View::Indented, "Part Name,Quantity,Total mass")));

    expectContains(sheet, "<f>SUMIF(E2:E4,1,B2:B4)</f><v>5</v>");
    expectContains(sheet, "<autoFilter ref=\"A1:D4\"/>");
}

TEST(Xlsx, NumbersKeepTheirDigitsAndAreShownAsAsked) {
    const parts::PartsList list =
        buildPartsList(drawn("Rod  box=1x1x1 material=Steel:0.00785123"),
                       request(View::Parts, "Mass[g]:1,Mass[kg],Quantity"));

    expectContains(sheetOf(list), "<v>7.85123");
    const std::string styles = entryOf(xlsxOf(list, {}), "xl/styles.xml");
    expectContains(styles, "formatCode=\"0.0\"");
    expectContains(styles, "formatCode=\"0.000000\"");  // 0.007851: four digits
}

TEST(Xlsx, APictureLiesInItsCellOnceForEqualOnes) {
    parts::PartsList list =
        buildPartsList(drawn("Rod\nBolt"), request(View::Parts, "Part Number,Quantity"));
    list.columns[1].column.field = parts::Field::Thumbnail;
    const auto png = std::make_shared<const std::string>(kPng);
    list.rows[0].cells[1] = parts::Picture{.png = png, .shape = 0};
    list.rows[1].cells[1] = parts::Picture{.png = png, .shape = 0};

    const std::string workbook = xlsxOf(list, {});

    EXPECT_TRUE(entryOf(workbook, "xl/media/image1.png") == kPng);
    EXPECT_EQ(entryOf(workbook, "xl/media/image2.png"), "no file");
    const std::string drawing = entryOf(workbook, "xl/drawings/drawing1.xml");
    expectContains(drawing, "<xdr:from><xdr:col>1</xdr:col>");
    expectContains(drawing, "<xdr:row>1</xdr:row>");
    expectContains(drawing, "<xdr:row>2</xdr:row>");
}

TEST(Xlsx, TheBytesAreThoseOfTheListAlone) {
    const parts::PartsList list =
        buildPartsList(drawn(kGate), request(View::Parts, "Part Number,Quantity"));
    const std::string workbook = xlsxOf(list, {});

    EXPECT_TRUE(workbook == xlsxOf(list, {}));
    expectContains(entryOf(workbook, "docProps/core.xml"), "2000-01-01T00:00:00Z");
}

TEST(Xlsx, ATextThatNoCellHoldsIsRefusedWithItsPlace) {
    parts::PartsList list =
        buildPartsList(drawn("Rod"), request(View::Parts, "Part Number,Description"));
    list.rows[0].cells[1] = std::string(32768, 'x');

    try {
        xlsxOf(list, {});
        FAIL();
    } catch (const parts::XlsxError& error) {
        EXPECT_STREQ(error.what(),
                     "XLSX cannot be written: row 1, \"Description\": a cell holds 32767 "
                     "characters at the most; write CSV instead (.csv)");
    }
}

TEST(Xlsx, AnEmptyListHasAHeaderAlone) {
    parts::PartsList list =
        buildPartsList(drawn("Rod"), request(View::Parts, "Part Number,Quantity"));
    list.rows.clear();

    const std::string sheet = sheetOf(list);

    expectContains(sheet, "<autoFilter ref=\"A1:B1\"/>");
    EXPECT_EQ(sheet.find("<f>"), std::string::npos);
}

}  // namespace
