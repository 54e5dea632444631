#include "workbench/commands/bom_request.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

using workbench::BomRequest;
using workbench::checkCellNames;
using workbench::checkRequest;
using workbench::ColumnChoice;
using workbench::parseColumns;
using workbench::parseLevels;
using workbench::parseSort;
using workbench::SortOrder;

/// The line with which something is refused as wrong usage; empty where it is not.
std::string usageRefusal(const std::function<void()>& parse) {
    try {
        parse();
        return "";
    } catch (const workbench::Failure& failure) {
        return failure.code() == workbench::ExitCode::BadUsage ? failure.what() : "other code";
    }
}

}  // namespace

TEST(BomRequest, OfNoOptionsIsEmpty) {
    EXPECT_TRUE(parseColumns({}).empty());
    EXPECT_FALSE(parseSort("").has_value());
    EXPECT_FALSE(parseLevels("").has_value());
    EXPECT_EQ(usageRefusal([] { checkRequest({}); }), "");
}

TEST(BomRequest, AColumnIsNamedAfterItsPropertyUnlessItHasACaption) {
    EXPECT_EQ(parseColumns({"Mass", "Area=Paint = cost", "Width="}),
              (std::vector<ColumnChoice>{{.property = "Mass", .caption = "Mass"},
                                         {.property = "Area", .caption = "Paint = cost"},
                                         {.property = "Width", .caption = ""}}));
}

TEST(BomRequest, AColumnWithoutPropertyIsRefused) {
    EXPECT_EQ(usageRefusal([] { parseColumns({"=Weight"}); }),
              "--column =Weight: expected PROPERTY or PROPERTY=CAPTION");
}

TEST(BomRequest, AColumnGivenTwiceIsRefused) {
    EXPECT_EQ(usageRefusal([] {
                  parseColumns({"Mass", "Area", "Mass=kg"});
              }),
              "--column Mass is given twice");
}

TEST(BomRequest, ASeventhColumnIsRefused) {
    EXPECT_EQ(usageRefusal([] {
                  parseColumns({"a", "b", "c", "d", "e", "f", "g"});
              }),
              "--column is given 7 times, but there are 6 free columns");
}

TEST(BomRequest, ASortAscendsUnlessItSaysOtherwise) {
    EXPECT_EQ(parseSort("Pos."), (SortOrder{.column = "Pos.", .descending = false}));
    EXPECT_EQ(parseSort("Mass:desc"), (SortOrder{.column = "Mass", .descending = true}));
}

TEST(BomRequest, OnlyTheLastOrderOfASortCounts) {
    EXPECT_EQ(parseSort("a:desc:asc"), (SortOrder{.column = "a:desc", .descending = false}));
}

TEST(BomRequest, ASortOfTheModelIsRefused) {
    BomRequest request;
    request.tab = &workbench::kModelTab;
    request.sort = parseSort("Mass");

    EXPECT_EQ(usageRefusal([&] { checkRequest(request); }),
              "--sort requires --tab structure: the model tab has an order of its own");
}

TEST(BomRequest, TheTreeIsExpandedToALevelOrCompletely) {
    EXPECT_EQ(parseLevels("3"), 3);
    EXPECT_EQ(parseLevels("all"), std::numeric_limits<int>::max());
}

TEST(BomRequest, ALevelThatIsNotANumberIsRefused) {
    EXPECT_EQ(usageRefusal([] { parseLevels("2nd"); }),
              "--expand 2nd: expected all, or a level from 1");
}

TEST(BomRequest, AnExpandedStructureIsRefused) {
    BomRequest request;
    request.levels = parseLevels("all");

    EXPECT_EQ(usageRefusal([&] { checkRequest(request); }),
              "--expand requires --tab model: the structure tab has no tree");
}

TEST(BomRequest, AnEditOfAnotherFormIsRefused) {
    EXPECT_EQ(usageRefusal([] { checkCellNames({"12:Part Number=A=B:C", "1:Mass="}); }), "");
    EXPECT_EQ(usageRefusal([] { checkCellNames({"1=Mass:1"}); }),
              "--set 1=Mass:1: expected ROW:COLUMN=VALUE");
    EXPECT_EQ(usageRefusal([] { checkCellNames({":Mass=1"}); }),
              "--set :Mass=1: expected ROW:COLUMN=VALUE");
}

TEST(BomRequest, KeepingColumnsThatAreNotGivenIsRefused) {
    BomRequest request;
    request.keepColumns = true;

    EXPECT_EQ(usageRefusal([&] { checkRequest(request); }),
              "--keep-columns requires --column: it stores the columns that are given");
}

TEST(BomRequest, ColumnsAndNoColumnsAreRefused) {
    BomRequest request;
    request.columns = parseColumns({"Mass"});
    request.noColumns = true;

    EXPECT_EQ(usageRefusal([&] { checkRequest(request); }),
              "--no-columns shows none, but --column is given");
}

TEST(BomRequest, AnEditThatIsNotSavedIsRefused) {
    BomRequest request;
    request.edits.cells = {"1:Mass=1"};

    EXPECT_EQ(usageRefusal([&] { checkRequest(request); }),
              "--set requires --save: without it the edits are lost when the dialog closes");
}
