#include "parts/parts_request.h"

#include <gtest/gtest.h>

#include <string>

using parts::Column;
using parts::Field;
using parts::findUnit;
using parts::parseColumn;
using parts::parseColumns;
using parts::parseFilter;

namespace {

template <class Parse>
std::string refusal(Parse parse) {
    try {
        parse();
    } catch (const parts::RequestError& error) {
        return error.what();
    }
    return "accepted";
}

std::string columnRefusal(const std::string& text) {
    return refusal([&] { parseColumn(text); });
}

std::string filterRefusal(const std::string& text) {
    return refusal([&] { parseFilter(text, {}); });
}

}  // namespace

TEST(ColumnText, NamesFieldCaptionUnitAndDecimals) {
    EXPECT_EQ(
        parseColumn("Mass=Weight[g]:2"),
        (Column{.field = Field::Mass, .caption = "Weight", .unit = findUnit("g"), .decimals = 2}));
    EXPECT_EQ(parseColumn("part number"), Column{.field = Field::PartNumber});
    EXPECT_EQ(parseColumn("Area [mm2]"), (Column{.field = Field::Area, .unit = findUnit("mm²")}));
}

TEST(ColumnText, AnyOtherNameIsACustomProperty) {
    EXPECT_EQ(parseColumn("Vendor=Supplier"),
              (Column{.field = Field::Property, .property = "Vendor", .caption = "Supplier"}));
    EXPECT_EQ(parseColumn("Size [mm]:2").field, Field::Size);
    EXPECT_EQ(parseColumn("Rev. [2]:1").property, "Rev. [2]:1");
}

TEST(ColumnText, TheMarkMakesAPropertyOfAnyName) {
    EXPECT_EQ(parseColumn("property:Mass"),
              (Column{.field = Field::Property, .property = "Mass", .isChosenProperty = true}));
}

TEST(ColumnText, ABackslashKeepsWhatWouldSeparate) {
    const std::vector<Column> columns = parseColumns("Item, Length\\, cut=A\\=B ,Quantity");

    ASSERT_EQ(columns.size(), 3U);
    EXPECT_EQ(columns[1].property, "Length, cut");
    EXPECT_EQ(columns[1].caption, "A=B");
}

TEST(ColumnText, IsReadBackAsItIsWritten) {
    for (const char* const text :
         {"Item", "Mass=Weight[g]:2", "Total mass[t]", "Area=A\\,B[mm²]", "Vendor=Supplier",
          "Length\\, cut", "property:Mass=M", "Rev. \\[2\\]\\:1"}) {
        const Column column = parseColumn(text);
        EXPECT_EQ(parseColumn(parts::columnText(column)), column) << parts::columnText(column);
    }
}

TEST(ColumnText, AUnitThatDoesNotFitIsRefusedWithThoseThatDo) {
    EXPECT_EQ(columnRefusal("Mass[mm]"),
              "\"Mass[mm]\": no unit of Mass; expected one of kg, g, mg, t, lb, oz");
    EXPECT_EQ(columnRefusal("Quantity[kg]"), "\"Quantity[kg]\": Quantity has no unit");
    EXPECT_EQ(columnRefusal("Quantity:2"), "\"Quantity:2\": Quantity has no decimals");
}

TEST(ColumnText, AnEmptyNameIsRefused) {
    EXPECT_EQ(columnRefusal(""), "\"\": expected the name of a column");
    EXPECT_EQ(columnRefusal("=Caption"), "\"=Caption\": expected the name of a column");
    EXPECT_EQ(refusal([] { parseColumns("Item,,Mass"); }),
              "\"Item,,Mass\": expected the name of a column between commas");
}

TEST(UnitNames, PowersMayBeDigits) {
    EXPECT_EQ(findUnit("cm2"), findUnit("cm²"));
    EXPECT_EQ(findUnit("kg/m^3"), findUnit("kg/m³"));
    EXPECT_EQ(findUnit("stone"), nullptr);
}

TEST(UnitNames, AreOfTheirDimension) {
    parts::Units units;
    units.choose("lb");
    units.choose("in");

    EXPECT_STREQ(units.mass->name, "lb");
    EXPECT_STREQ(units.length->name, "in");
    EXPECT_NE(
        refusal([&] { units.choose("stone"); }).find("\"stone\": no such unit; there are mm,"),
        std::string::npos);
}

TEST(UnitNames, FactorsAreThoseOfTheirDefinitions) {
    EXPECT_DOUBLE_EQ(2.54 * findUnit("in")->factor, 1);
    EXPECT_DOUBLE_EQ(0.45359237 * findUnit("lb")->factor, 1);
    EXPECT_DOUBLE_EQ(0.028349523125 * findUnit("oz")->factor, 1);
    EXPECT_DOUBLE_EQ(0.00785 * findUnit("kg/m3")->factor, 7850);
    EXPECT_DOUBLE_EQ(0.00785 * findUnit("g/cm3")->factor, 7.85);
    EXPECT_DOUBLE_EQ(16.387064 * findUnit("in3")->factor, 1);
    EXPECT_DOUBLE_EQ(929.0304 * findUnit("ft2")->factor, 1);
}

TEST(FilterText, TakesANumberInTheUnitItNames) {
    EXPECT_DOUBLE_EQ(*parseFilter("Mass>5 g", {}).number, 0.005);
    EXPECT_DOUBLE_EQ(*parseFilter("Mass>5", {}).number, 5);
    EXPECT_DOUBLE_EQ(*parseFilter("X <= 25.4", {}).number, 2.54);
    EXPECT_DOUBLE_EQ(*parseFilter("Quantity!=3", {}).number, 3);
}

TEST(FilterText, KeepsTheOperator) {
    using parts::Comparison;
    EXPECT_EQ(parseFilter("Mass>=5", {}).comparison, Comparison::GreaterOrEqual);
    EXPECT_EQ(parseFilter("Material!=Steel", {}).comparison, Comparison::NotEqual);
    EXPECT_EQ(parseFilter("Part Name~a=b", {}).comparison, Comparison::Contains);
    EXPECT_EQ(parseFilter("Part Name~a=b", {}).text, "a=b");
}

TEST(FilterText, ReadsBackTheSame) {
    EXPECT_EQ(filterText(parseFilter("mass[g] >= 5", {})), "Mass[g]>=5");
    EXPECT_EQ(filterText(parseFilter("Material != Steel", {})), "Material!=Steel");
    EXPECT_EQ(filterText(parseFilter("Colour\\, outside=red", {})), "Colour\\, outside=red");
}

TEST(FilterText, IsRefusedWithWhatWouldBeRight) {
    EXPECT_EQ(filterRefusal("Steel"),
              "\"Steel\": expected COLUMN, one of = != ~ < > <= >=, and a value");
    EXPECT_EQ(filterRefusal("Mass>heavy"),
              "\"Mass>heavy\": expected a number, with one of the "
              "units kg, g, mg, t, lb, oz or none");
    EXPECT_EQ(filterRefusal("Mass>5 mm"),
              "\"Mass>5 mm\": expected a number, with one of the "
              "units kg, g, mg, t, lb, oz or none");
    EXPECT_EQ(filterRefusal("Quantity>5 g"), "\"Quantity>5 g\": expected a number");
}

TEST(SortText, NamesColumnsAndTheirDirections) {
    const std::vector<parts::SortKey> keys = parts::parseSort("Mass:desc,Part Number,Level:asc");

    ASSERT_EQ(keys.size(), 3U);
    EXPECT_EQ(keys[0].column.field, Field::Mass);
    EXPECT_TRUE(keys[0].isDescending);
    EXPECT_FALSE(keys[1].isDescending);
    EXPECT_EQ(keys[2].column.field, Field::Level);
}

TEST(SortText, ItemNumbersFollowTheOrderAndDoNotMakeIt) {
    EXPECT_EQ(refusal([] { parts::parseSort("Item"); }),
              "\"Item\": a list cannot be sorted by Item");
}

TEST(MergingText, IsOneOfTheNamesOrColumns) {
    EXPECT_EQ(parts::parseMerging("name").by, parts::MergeBy::Name);
    EXPECT_EQ(parts::mergingText(parts::parseMerging("Part Number,Material")),
              "Part Number,Material");
}

TEST(MergingText, ColumnsThatAreNoPropertyOfAComponentAreRefused) {
    for (const char* const column : {"Item", "Quantity", "Quantity per parent", "Total mass",
                                     "Level", "Path", "Used in", "Thumbnail"}) {
        EXPECT_EQ(refusal([&] { parts::parseMerging(std::string("Material,") + column); }),
                  "\"" + std::string(column) +
                      "\": no property of a component, so nothing can be merged by it; expected "
                      "custom properties or Part Number, Part Name, Description, Mass, Volume, "
                      "Area, Density, Material, X, Y, Z, Size, BOM Structure, Bodies, Document");
    }
    EXPECT_NO_THROW(parts::parseMerging("Part Number,Colour,Mass[g],property:Level"));
}

TEST(ViewText, IsOneOfTheNames) {
    EXPECT_EQ(parts::parseView("indented"), parts::View::Indented);
    EXPECT_EQ(refusal([] { parts::parseView("flat"); }),
              "\"flat\": no such view; there are parts, indented, top, all");
}

TEST(Request, NeedsBodiesForWhatIsMeasuredAlone) {
    parts::PartsRequest request{.columns = parseColumns("Part Number,Quantity,Material")};
    EXPECT_FALSE(parts::needsBodies(request));

    request.filters = {parseFilter("Mass>1", {})};
    EXPECT_TRUE(parts::needsBodies(request));
    EXPECT_TRUE(parts::needsBodies(parts::PartsRequest()));
}
