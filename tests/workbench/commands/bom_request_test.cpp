#include "workbench/commands/bom_request.h"

#include "workbench/cli/exit_code.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace {

using workbench::BomOptions;
using workbench::BomWishes;
using workbench::CellEdit;
using workbench::ColumnWish;
using workbench::SortWish;

BomWishes read(const std::function<void(BomOptions&)>& set) {
    BomOptions options;
    set(options);
    return workbench::readWishes(options);
}

/// The line with which options are refused as wrong usage; empty where they are not.
std::string refusal(const std::function<void(BomOptions&)>& set) {
    try {
        read(set);
        return "";
    } catch (const workbench::Failure& failure) {
        return failure.code() == workbench::ExitCode::BadUsage ? failure.what() : "other code";
    }
}

}  // namespace

TEST(BomWishes, WithoutOptionsNothingIsWished) {
    const BomWishes wishes = read([](BomOptions&) {});

    EXPECT_TRUE(wishes.columns.empty());
    EXPECT_FALSE(wishes.sort.has_value());
    EXPECT_EQ(wishes.levels, 1);
    EXPECT_TRUE(wishes.cells.empty());
}

TEST(BomWishes, AColumnIsCalledAsItsPropertyOrAsTold) {
    const BomWishes wishes = read([](BomOptions& options) {
        options.columns = {"Mass", "Area=Paint = cost", "Width="};
    });

    EXPECT_EQ(wishes.columns,
              (std::vector<ColumnWish>{{"Mass", "Mass"}, {"Area", "Paint = cost"}, {"Width", ""}}));
}

TEST(BomWishes, AColumnWithoutPropertyIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) { options.columns = {"=Weight"}; }),
              "--column =Weight: it has to be PROPERTY or PROPERTY=CAPTION");
}

TEST(BomWishes, AColumnGivenTwiceIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) {
                  options.columns = {"Mass", "Area", "Mass=kg"};
              }),
              "--column Mass is given twice");
}

TEST(BomWishes, ASeventhColumnIsRefused) {
    EXPECT_EQ(
        refusal([](BomOptions& options) { options.columns = {"a", "b", "c", "d", "e", "f", "g"}; }),
        "--column is given 7 times, there are 6 free columns");
}

TEST(BomWishes, ASortAscendsUnlessItIsToldToDescend) {
    EXPECT_EQ(read([](BomOptions& options) { options.sort = "Pos."; }).sort,
              (SortWish{"Pos.", false}));
    EXPECT_EQ(read([](BomOptions& options) { options.sort = "Mass:desc"; }).sort,
              (SortWish{"Mass", true}));
}

TEST(BomWishes, OnlyTheLastOrderOfASortCounts) {
    EXPECT_EQ(read([](BomOptions& options) { options.sort = "a:desc:asc"; }).sort,
              (SortWish{"a:desc", false}));
}

TEST(BomWishes, ASortOfTheModelIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) {
                  options.tab = "model";
                  options.sort = "Mass";
              }),
              "--sort needs --tab structure: the other tab has an order of its own");
}

TEST(BomWishes, TheTreeIsShownToALevelOrWhole) {
    BomOptions options;
    options.tab = "model";
    options.expand = "3";
    EXPECT_EQ(workbench::readWishes(options).levels, 3);
    options.expand = "all";
    EXPECT_EQ(workbench::readWishes(options).levels, std::numeric_limits<int>::max());
}

TEST(BomWishes, ALevelThatIsNoneIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) {
                  options.tab = "model";
                  options.expand = "2nd";
              }),
              "--expand 2nd: it has to be all, or a level from 1 on");
}

TEST(BomWishes, AnExpandedStructureIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) { options.expand = "all"; }),
              "--expand needs --tab model: the other tab has no tree");
}

TEST(BomWishes, ACellIsARowAndAColumn) {
    const BomWishes wishes = read([](BomOptions& options) {
        options.save = true;
        options.cells = {"12:Part Number=A=B:C", "1:Mass="};
    });

    EXPECT_EQ(wishes.cells, (std::vector<CellEdit>{{12, "Part Number", "A=B:C"}, {1, "Mass", ""}}));
}

TEST(BomWishes, ACellOfAnotherFormIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) {
                  options.save = true;
                  options.cells = {"0:Mass=1"};
              }),
              "--set 0:Mass=1: it has to be ROW:COLUMN=VALUE, with a row from 1 on");
    EXPECT_EQ(refusal([](BomOptions& options) {
                  options.save = true;
                  options.cells = {"1=Mass:1"};
              }),
              "--set 1=Mass:1: it has to be ROW:COLUMN=VALUE, with a row from 1 on");
}

TEST(BomWishes, ACellThatIsNotSavedIsRefused) {
    EXPECT_EQ(refusal([](BomOptions& options) { options.cells = {"1:Mass=1"}; }),
              "--set needs --save: what is not saved is lost as the dialog closes");
}
