#include "tests/parts/drawn_list.h"
#include "tests/support/text.h"

#include "parts/csv_writer.h"
#include "parts/json_text.h"
#include "parts/json_writer.h"
#include "parts/markdown_writer.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

using parts::PartsList;
using parts::View;
using test_support::drawn;
using test_support::request;
using test_support::text;

namespace {

PartsList listOf(const std::string& outline, const std::string& columns, View view = View::Parts) {
    return parts::buildPartsList(drawn(outline), request(view, columns));
}

std::string csv(const PartsList& list, const parts::CsvFormat& format = {}) {
    std::ostringstream stream;
    parts::writeCsv(list, format, stream);
    return stream.str();
}

std::string tsv(const PartsList& list) {
    std::ostringstream stream;
    parts::writeTsv(list, {}, stream);
    return stream.str();
}

std::string markdown(const PartsList& list) {
    std::ostringstream stream;
    parts::writeMarkdown(list, {}, stream);
    return stream.str();
}

std::string json(const PartsList& list, parts::JsonLayout layout = parts::JsonLayout::Indented) {
    std::ostringstream stream;
    parts::writeJson(list, layout, stream);
    return stream.str();
}

/// A list with one cell.
PartsList cell(const std::string& value) {
    PartsList list;
    list.columns = {{.column = {.field = parts::Field::PartName}, .caption = "Name", .key = "n"}};
    list.rows = {{.cells = {value}}};
    return list;
}

}  // namespace

TEST(Csv, HasCaptionsAndRows) {
    EXPECT_EQ(csv(listOf("Bolt  box=1x1x1 material=S:0.01\nBolt", "Part Number,Quantity,Mass")),
              "Part Number,Quantity,Mass [kg]\r\nBolt,2,0.01\r\n");
}

TEST(Csv, QuotesWhatWouldSeparate) {
    EXPECT_EQ(csv(cell("a,b")), "Name\r\n\"a,b\"\r\n");
    EXPECT_EQ(csv(cell("5\" pipe")), "Name\r\n\"5\"\" pipe\"\r\n");
    EXPECT_EQ(csv(cell("two\nlines")), "Name\r\n\"two\nlines\"\r\n");
    EXPECT_EQ(csv(cell("a|b"), {.delimiter = '|'}), "Name\r\n\"a|b\"\r\n");
}

TEST(Csv, QuotesAnEmptyValueThatIsTheOnlyOneOfItsLine) {
    PartsList list = cell("");
    list.rows.push_back({.cells = {parts::Cell()}});

    EXPECT_EQ(csv(list), "Name\r\n\"\"\r\n\"\"\r\n");
    EXPECT_EQ(csv(listOf("Bolt", "Part Number,Description")),
              "Part Number,Description\r\nBolt,\r\n");
}

TEST(Csv, QuotesTextsThatASpreadsheetWouldSplit) {
    EXPECT_EQ(csv(cell("a;=cmd")), "Name\r\n\"a;=cmd\"\r\n");
    EXPECT_EQ(csv(cell("a\t=cmd")), "Name\r\n\"a\t=cmd\"\r\n");
    EXPECT_EQ(csv(cell("a,=cmd"), {.delimiter = ';'}), "Name\r\n\"a,=cmd\"\r\n");
    EXPECT_EQ(csv(cell("a=cmd")), "Name\r\na=cmd\r\n");
}

TEST(Csv, MarksFormulasUnlessTheyAreWanted) {
    EXPECT_EQ(csv(cell("=1+1")), "Name\r\n'=1+1\r\n");
    EXPECT_EQ(csv(cell("=1+1"), {.guardFormulas = false}), "Name\r\n=1+1\r\n");
}

TEST(Csv, MarksNoNumbers) {
    PartsList list = cell("");
    list.rows[0].cells[0] = parts::Number{.value = -2.5};

    EXPECT_EQ(csv(list), "Name\r\n-2.5\r\n");
}

TEST(Csv, TakesADecimalCommaAndAByteOrderMark) {
    EXPECT_EQ(csv(listOf("Bolt  box=1x1x1 material=S:0.01", "Part Number,Mass"),
                  {.numbers = {.decimalComma = true}, .delimiter = ';', .byteOrderMark = true}),
              "\xEF\xBB\xBFPart Number;Mass [kg]\r\nBolt;0,01\r\n");
}

TEST(Tsv, IsALineForEachRow) {
    EXPECT_EQ(tsv(cell("a\tb\nc\\d\re")), "Name\na\\tb\\nc\\\\d\\re\n");
    EXPECT_EQ(tsv(listOf("Bolt", "Part Number,Quantity")), "Part Number\tQuantity\nBolt\t1\n");
}

TEST(Markdown, AlignsNumbersAndEndsInTheTotals) {
    EXPECT_EQ(markdown(
                  listOf("Bolt  box=1x1x1 material=S:0.01\nBolt", "Part Number,Quantity,Mass")),
              text(R"(
        | Part Number | Quantity | Mass \[kg\] |
        | --- | ---: | ---: |
        | Bolt | 2 | 0.01 |

        2 items, 0.02 kg
        )") + "\n");
}

TEST(Markdown, EscapesWhatWouldBeMarkup) {
    const std::string rows = markdown(cell("a|b <img src=x> *c* [d](e) @f #1\nnext `g`"));

    EXPECT_NE(rows.find("| a\\|b \\<img src=x\\> \\*c\\* \\[d\\]\\(e\\) @f \\#1 next \\`g\\` |"),
              std::string::npos)
        << rows;
}

TEST(Markdown, NamesConflictsAndPossibleDuplicates) {
    PartsList list = listOf("Bolt  number=B\nScrew  number=B", "Quantity");
    list.duplicates = {{.shape = 0, .items = {"A", "B"}}};

    EXPECT_NE(markdown(list).find("- B: different name (Bolt, Screw)\n"
                                  "- possible duplicates, of one shape: A, B\n"),
              std::string::npos)
        << markdown(list);
}

TEST(Json, HasNumbersAsNumbersWithAllTheirDigits) {
    const auto read = nlohmann::json::parse(
        json(listOf("Bolt  box=1x1x3 material=S:0.007851", "Quantity,Mass[g]:1,Size")));

    const auto& row = read["rows"][0];
    EXPECT_EQ(row["cells"]["quantity"], 1);
    EXPECT_TRUE(row["cells"]["quantity"].is_number_integer());
    EXPECT_DOUBLE_EQ(row["cells"]["mass"], 23.553);
    EXPECT_EQ(row["cells"]["size"], (std::vector<double>{30, 10, 10}));
    EXPECT_DOUBLE_EQ(row["massKg"], 0.023553);
}

TEST(Json, DecimalsThatAreShownTakeNoDigitsAway) {
    const auto read = nlohmann::json::parse(
        json(listOf("Bolt  box=1x1x3.5 material=S:0.001", "Quantity,Mass[g]:0")));

    EXPECT_NEAR(read["rows"][0]["cells"]["mass"].get<double>(), 3.5, 1e-12);
    EXPECT_TRUE(read["rows"][0]["cells"]["quantity"].is_number_integer());
}

TEST(Json, ShowsTheTreeByItemNumbers) {
    const auto read = nlohmann::json::parse(json(listOf(R"(
        Hinge
          Pin
          Leaf
        Lid)",
                                                        "Part Name", View::Indented)));

    EXPECT_EQ(read["rows"][0]["children"], (std::vector<std::string>{"1.1", "1.2"}));
    EXPECT_EQ(read["rows"][1]["parent"], "1");
    EXPECT_EQ(read["rows"][1]["level"], 2);
    EXPECT_EQ(read["rows"][1]["path"], "Hinge:1+Pin:1");
    EXPECT_TRUE(read["rows"][3]["parent"].is_null());
    EXPECT_EQ(read["rows"][0]["kind"], "assembly");
}

TEST(Json, NamesWhatIsMergedAndWhereItIsUsed) {
    const auto read = nlohmann::json::parse(json(listOf(R"(
        Pin  number=P
        Bolt  number=P
        Bolt)",
                                                        "Part Name")));

    EXPECT_EQ(read["rows"][0]["components"],
              nlohmann::json::parse(R"([{"name": "Pin", "partNumber": "P", "quantity": 1},
                                        {"name": "Bolt", "partNumber": "P", "quantity": 2}])"));
    EXPECT_EQ(
        read["rows"][0]["usedIn"],
        nlohmann::json::parse(R"([{"name": "Design", "partNumber": "Design", "quantity": 3}])"));
}

TEST(Json, IsOneLineWhereAskedFor) {
    const std::string line = json(listOf("Bolt\nNut", "Part Name"), parts::JsonLayout::Line);

    EXPECT_EQ(line.find('\n'), line.size() - 1);
    EXPECT_EQ(nlohmann::json::parse(line)["rows"].size(), 2U);
}

TEST(Json, HoldsEachPictureOnce) {
    const host::DesignData design = drawn("Pin\nRod");
    const parts::PartShapes shapes{.classOf = {std::nullopt, 7, 7},
                                   .pictures = {{7, std::make_shared<const std::string>("png")}}};

    const auto read = nlohmann::json::parse(
        json(parts::buildPartsList(design, request(View::Parts, "Thumbnail"), shapes)));

    EXPECT_EQ(read["pictures"], nlohmann::json::parse(R"({"7": "cG5n"})"));
    EXPECT_EQ(read["rows"][1]["cells"]["thumbnail"], 7);
}

TEST(JsonText, HasTheBytesOfATreeOfValues) {
    const std::vector<std::string> strings = {"",
                                              "plain",
                                              "six \"inch\"",
                                              "back\\slash",
                                              "tab\tline\r\n\x01\x7f",
                                              "P\xC5\x99\xC3\xADruba",
                                              "\xFF no UTF-8",
                                              "{[:"};
    const std::vector<double> numbers = {0, -0.0, 1, 0.1, 1e-7, 1.0 / 3, 1e20, 1e300, -2.5};
    parts::Json tree = {{"strings", strings}, {"numbers", numbers}, {"none", nullptr}};
    tree["counts"] = {std::int64_t{-1}, std::int64_t{1} << 60};
    tree["flags"] = {true, false};
    tree["empty"] = {parts::Json::object(), parts::Json::array()};
    parts::JsonText text;
    const auto list = [&](const char* name, const auto& write) {
        text.name(name);
        text.begin('[');
        write();
        text.end(']');
    };

    text.begin('{');
    list("strings", [&] {
        std::ranges::for_each(strings, [&](const std::string& each) { text.string(each); });
    });
    list("numbers",
         [&] { std::ranges::for_each(numbers, [&](double each) { text.number(each); }); });
    text.name("none");
    text.null();
    list("counts", [&] {
        text.whole(-1);
        text.whole(std::int64_t{1} << 60);
    });
    list("flags", [&] {
        text.flag(true);
        text.flag(false);
    });
    list("empty", [&] {
        text.begin('{');
        text.end('}');
        text.begin('[');
        text.end(']');
    });
    text.end('}');

    EXPECT_EQ(text.text(), parts::dumped(tree));
}

TEST(Json, BytesThatAreNoUtf8AreReplaced) {
    EXPECT_EQ(nlohmann::json::parse(json(cell("a\xFF")))["rows"][0]["cells"]["n"], "a\uFFFD");
}
